#include <herald/messages/info_objects/NewRoundInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring NewRoundInfo::toDebugString() const { return L"[NewRoundInfo: ]"; }

}  // namespace Tessel
