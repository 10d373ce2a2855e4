#include <herald/messages/info_objects/GameInfoList.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring GameInfoList::toDebugString() const { return L"[GameInfoList:" + joinDebugTexts(*this) + L"]"; }

}  // namespace Tessel
