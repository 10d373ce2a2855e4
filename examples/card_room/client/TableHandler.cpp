#include "TableHandler.h"

#include <herald/messages/BettingEvents.h>
#include <herald/messages/CardEvents.h>
#include <herald/messages/SeatEvents.h>
#include <herald/messages/TableStateEvents.h>

#include <algorithm>

using namespace Tessel;

namespace CardRoom {

void TableHandler::handle(const GameStateInfoMsg& message) { table_.show(message.getGameStateInfo()); }

void TableHandler::handle(const ClientNewRound& message) { table_.startHand(message.getNewRoundInfo()); }

void TableHandler::handle(const ClientSetDealerToken& message) { table_.dealer = message.getDealer().getSeat(); }

void TableHandler::handle(const PlayerSatDown& message) {
  table_.sitDown(message.getInfo().getSeat(), message.getInfo().getPlayerInGameInfo());
}

// Who stands up is named by the nick alone.
void TableHandler::handle(const PlayerStandUp& message) {
  const std::wstring nick = message.getPigIDInfo().getNickName();
  const auto seat = std::ranges::find_if(table_.seats, [&](const auto& one) { return one.second.nick == nick; });
  if (seat != table_.seats.end()) table_.standUp(seat->second.player);
}

void TableHandler::handle(const PlayerIGLeft& message) { table_.standUp(message.getPlayerId()); }

void TableHandler::handle(const ReserveMoneyReply& message) {
  if (message.getReplyInfo().isStatusOk()) table_.setMoney(message.getReplyInfo().getPlayerInGameInfo());
}

void TableHandler::handle(const ClientSatIn& message) {
  if (TableModel::Seat* seat = table_.seatOf(message.getInfo().getPlayerID())) seat->isSittingIn = true;
}

void TableHandler::handle(const ClientSatOut& message) {
  if (TableModel::Seat* seat = table_.seatOf(message.getInfo().getPlayerID())) seat->isSittingIn = false;
}

void TableHandler::handle(const ClientBetReq& message) {
  const BetRequestInfo& request = message.getBetRequestInfo();
  table_.toAct = request.getNrReqSeats() > 0 ? request.getReqSeat(0) : -1;
  table_.secondsToAct = request.getTotalTime();
  table_.deadline = std::chrono::steady_clock::now() + std::chrono::seconds(request.getTimeLeft());
}

void TableHandler::handle(const ClientBetDone& message) { table_.bet(message.getCreditInfo(), L"bets"); }
void TableHandler::handle(const ClientCallDone& message) { table_.bet(message.getCreditInfo(), L"calls"); }
void TableHandler::handle(const ClientBetDeadDone& message) { table_.betDead(message.getCreditInfo()); }

void TableHandler::handle(const ClientCheckDone& message) {
  if (TableModel::Seat* seat = table_.seatOf(message.getPlayer().getId())) seat->lastMove = L"checks";
}

void TableHandler::handle(const ClientFoldDone& message) { table_.fold(message.getPlayer().getSeat()); }

void TableHandler::handle(const ClientAllInDone& message) {
  if (TableModel::Seat* seat = table_.seatOf(message.getPlayer().getId())) seat->lastMove = L"all in";
}

void TableHandler::handle(const ClientBetsToPot& message) { table_.betToPot(message.getCreditInfo()); }
void TableHandler::handle(const ClientTotalRake& message) { table_.takeRake(message.getCreditInfo().getAmount()); }

void TableHandler::handle(const ClientWin& message) {
  for (const WinPotInfo& pot : message.getPots()) table_.win(pot);
}

void TableHandler::handle(const ClientCards& message) { table_.dealt(message.getDealtCardsInfo().getCardsInfo()); }
void TableHandler::handle(const ClientShowAllCards& message) { table_.turnUp(message.getCardsInfo()); }
void TableHandler::handle(const ClientEndRound&) { table_.toAct = -1; }

}  // namespace CardRoom
