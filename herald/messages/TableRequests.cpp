#include <herald/messages/RequestOperations.h>
#include <herald/messages/TableRequests.h>

namespace Tessel {

std::wstring ServerInTurnAction::toDebugString() const {
  return formatText(L"[ServerInTurnAction: [playerId: %d playerSeat: %d betRound: %d actionType: %d amount: %li]",
                    playerId_, playerSeat_, betRound_, actionType_, amount_.getAmount());
}

std::wstring PlayerCastVote::toDebugString() const { return formatText(L"[PlayerCastVote: %d]", player_.getId()); }

std::wstring PlayerCancelVote::toDebugString() const { return formatText(L"[PlayerCancelVote: %d]", player_.getId()); }

std::wstring PlayerLeaveGame::toDebugString() const { return L"[PlayerLeaveGame]"; }

std::wstring ReserveMoney::toDebugString() const { return formatText(L"[ReserveMoney: %d]", amount_); }

bool ServerCards::write(ByteStream&) const { return false; }

std::wstring ServerCards::toDebugString() const { return formatText(L"[ServerCards: %s]", cards_); }

void ServerCards::describe(FieldSink& sink) const { FieldDescriber{sink}("body", cards_); }

}  // namespace Tessel
