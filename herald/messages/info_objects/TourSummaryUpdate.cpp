#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TourSummary.h>
#include <herald/messages/info_objects/TourSummaryUpdate.h>

namespace Tessel {

void TourSummaryUpdate::update(TourSummary& summary) const {
  if (summary.tourId_ != tourId_) return;
  summary.status_ = status_;
  summary.attributes_ = attributes_;
  summary.numEntrants_ = numEntrants_;
  summary.currentNumPlayers_ = currentNumPlayers_;
  prizeStructureUpdate_.update(summary.prizeStructure_);
  summary.startTime_ = startTime_;
  if (summary.isFlight()) summary.flightInfo_.setNumPlayersInMainEvent(numPlayersInMainEvent_);
  summary.regStatus_ = regStatus_;
}

std::wstring TourSummaryUpdate::toDebugString() const {
  return formatText(
      L"[TourSummaryUpdate TourId=%d, Attributes=%d, Status=%d, NumEntrants=%d, CurrentNumPlayers=%d, "
      L"PrizeStructureUpdate=%s, StartTime==%d, NumPlayersInMainEvent=%d, RegStatus=%d]",
      tourId_, attributes_, status_, numEntrants_, currentNumPlayers_, prizeStructureUpdate_, startTime_,
      numPlayersInMainEvent_, regStatus_);
}

}  // namespace Tessel
