#include <herald/messages/info_objects/ClientSatOutInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring ClientSatOutInfo::toDebugString() const {
  return formatText(L"[ClientSatOutInfo: PlayerID: %d, Status: %d]", playerId_, status_);
}

}  // namespace Tessel
