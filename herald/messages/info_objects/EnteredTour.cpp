#include <herald/messages/info_objects/EnteredTour.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring EnteredTour::toDebugString() const {
  return formatText(L"[EnteredTour: iTournamentId=%d, iNodeId=%d, iName=%s]", tournamentId_, nodeId_, name_);
}

}  // namespace Tessel
