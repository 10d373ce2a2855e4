#include <herald/messages/info_objects/FlightInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring FlightInfo::toDebugString() const {
  return formatText(L"[FlightInfo: MainEventId=%d, NumPlayers=%d, DurationMs=%li]", mainEventId_, numPlayers_,
                    durationMs_);
}

}  // namespace Tessel
