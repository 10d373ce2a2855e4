#include <herald/messages/info_objects/LobbyItemInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring LobbyItemInfo::toDebugString() const { return L"[LobbyItemInfo]"; }

}  // namespace Tessel
