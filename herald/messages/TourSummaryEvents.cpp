#include <herald/messages/MessageOperations.h>
#include <herald/messages/TourSummaryEvents.h>

namespace Tessel {

std::wstring TourSummaryChangeList::toDebugString() const {
  return formatText(L"[TourSummaryChangeList: NodeId=%d %s %s %s]", nodeId_, newTournaments_, updatedTournaments_,
                    deletedTournaments_);
}

std::wstring SpecificTourSummary::toDebugString() const {
  return formatText(L"[SpecificTourSummary: TourSummary=%s PlayerInfo=%s]", tourSummary_, playerInfo_);
}

std::wstring SpecificTourSummaryUpdate::toDebugString() const {
  return formatText(L"[SpecificTourSummaryUpdate: TourSummaryUpdate=%s PlayerInfo=%s]", tourSummaryUpdate_,
                    playerInfo_);
}

}  // namespace Tessel
