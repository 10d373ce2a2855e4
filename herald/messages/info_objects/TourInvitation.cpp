#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TourInvitation.h>

namespace Tessel {

TourInvitation::TourInvitation(ByteStream& in) { TourInvitation::read(in); }

std::wstring TourInvitation::toDebugString() const {
  return formatText(L"[TourInvitation - iTournamentId=%d, iTableId=%d iNodeId=%d, iServerPort=%d iMonetaryUnitId=%d]",
                    tournamentId_, tableId_, nodeId_, serverPort_, monetaryUnitId_);
}

}  // namespace Tessel
