#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TourPlayerRebuyNotification.h>

namespace Tessel {

std::wstring TourPlayerRebuyNotification::toDebugString() const {
  return formatText(L"[TourPlayerRebuyNotification: PlayerId=%s, PlayerName=%s, ChipStack=%s, Cost=%s, IsAddon=%s]",
                    playerId_, playerName_, chipStack_, cost_, isAddon_);
}

}  // namespace Tessel
