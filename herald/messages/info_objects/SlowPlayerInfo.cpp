#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/SlowPlayerInfo.h>

namespace Tessel {

std::wstring SlowPlayerInfo::toDebugString() const {
  return formatText(L"[SlowPlayerInfo: PlayerId: %li, Status: %d]", playerId_, status_);
}

}  // namespace Tessel
