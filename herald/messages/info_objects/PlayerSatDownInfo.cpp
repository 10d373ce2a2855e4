#include <herald/messages/info_objects/PlayerSatDownInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring PlayerSatDownInfo::toDebugString() const {
  return formatText(L"[PlayerSatDownInfo: %s, Seat: %d]", player_, seat_);
}

}  // namespace Tessel
