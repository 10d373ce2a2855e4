#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TournamentJoinRequest.h>

namespace Tessel {

TournamentJoinRequest::TournamentJoinRequest(int playerId, int tournamentId, int tableId)
    : playerId_(playerId), tournamentId_(tournamentId), tableId_(tableId) {}

TournamentJoinRequest::TournamentJoinRequest(int playerId, int tournamentId, std::wstring_view password)
    : playerId_(playerId), tournamentId_(tournamentId), tableId_(-1), password_(password) {}

std::wstring TournamentJoinRequest::toDebugString() const {
  return formatText(
      L" [TournamentJoinRequest - iPlayerId=%d, iTournamentId=%d, iTableId=%d, iReplyStatus=%d iPassword&%s]",
      playerId_, tournamentId_, tableId_, replyStatus_, password_);
}

}  // namespace Tessel
