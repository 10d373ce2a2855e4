#include "Client.h"

#include <herald/HeraldUtils/CurrentServerTimeModel.h>
#include <herald/HeraldUtils/UserAccountModel.h>
#include <herald/inspect/Encoding.h>
#include <herald/messages/AccountEvents.h>
#include <herald/messages/BettingEvents.h>
#include <herald/messages/ChatEvents.h>
#include <herald/messages/JoinEvents.h>
#include <herald/messages/LobbyEvents.h>
#include <herald/messages/LobbyRequests.h>
#include <herald/messages/SeatEvents.h>
#include <herald/messages/TableRequests.h>
#include <herald/messages/TableStateEvents.h>
#include <herald/messages/TourSummaryEvents.h>
#include <herald/messages/TournamentLobbyEvents.h>
#include <herald/messages/TournamentLobbyRequests.h>
#include <herald/messages/TournamentMessages/TourProgressEvents.h>
#include <herald/platform/keystone/Format.h>
#include <herald/platform/keystone/MoneyModel.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <utility>

using namespace Tessel;

namespace CardRoom {

namespace {

enum Node { HOLDEM = 11, SIT_AND_GOES = 22 };
constexpr int GAMES_AND_SEATS = 1;

/// What the answer to a request for a table consists of.
bool opensTable(const ClientMessage& message) {
  return dynamic_cast<const GameStateInfoMsg*>(&message) != nullptr
         || dynamic_cast<const ClientTableInfo*>(&message) != nullptr
         || dynamic_cast<const JoinGameFailed*>(&message) != nullptr;
}

}  // namespace

Client::Client(asio::io_context& io, PostOffice& office, const Settings& settings, Pilot& pilot)
    : settings_(settings), pilot_(pilot), messages_(&office), events_(&office), commands_(&office),
      connection_(io, settings.connection, messages_, events_) {
  stopHolding();
}

Client::~Client() { leaveTournament(); }

// The user's thread.

void Client::work() {
  for (const auto& event : events_.pickupAll()) event->handle(*this);
  for (auto& command : commands_.pickupAll())
    TournamentLobbyControllerMessageHandler::handle(*this, std::move(command));
  for (auto& message : messages_.pickupAll()) deliver(std::move(message));
}

void Client::deliver(std::unique_ptr<ClientMessage> message) {
  ++deliveredCount_;
  try {
    if (dynamic_cast<const ConnectOk*>(message.get()) != nullptr) stopHolding();
    note(*message);
    if (!opensTable(*message) && untilTableIsOpen_.delayMessage(message)) return;
    AbstractClientMessageHandler::handle(*this, std::move(message));
  } catch (const std::exception& nonsense) {
    Log::append(L"A message that makes no sense here: " + UTFEncoder::toWide(nonsense.what()), L"card_room/Client", 2);
    connection_.giveUp(ConnectionFailed::FAILED_DATA);
  }
}

void Client::note(const ClientMessage& message) {
  if (const auto* begin = dynamic_cast<const ConnectOk*>(&message))
    session_ = static_cast<int>(begin->getSelfPlayerInfo().getValue());
  ByteStream body;
  if (settings_.ledger != nullptr && encode(message, body))
    settings_.ledger->message(session_, Inspectable(message).className(), body.bytes());
}

// The connection.

void Client::handle(const ConnectionStatusMessage& message) {
  message.getConnectionStatus()->handle(static_cast<ConnectionStatusMessageHandler&>(*this));
}

void Client::handle(const ClientDataMessage&) {}

void Client::handle(const ConnectionRegistration&) { status_ = L"Connected"; }

void Client::handle(const ConnectionOK& event) {
  ++loginCount_;
  me_ = event.getUser();
  status_ = L"Logged in as " + me_.getNickName();
}

void Client::handle(const ConnectionUpdate& event) {
  status_ = formatText(L"%s Attempt %d to connect again", event.getMessage(), event.getReconnectAttempts());
}

void Client::handle(const ConnectionFailed& event) {
  status_ = event.getMessage();
  isOver_ = true;
}

void Client::handle(const ConnectionUnregistration&) { isOver_ = true; }

void Client::handle(const ConnectOk& message) {
  const PokerSelfPlayerInfo& self = message.getSelfPlayerInfo();
  handle(ConnectionOK(User(self.getId(), self.getNickName())));
  isEntering_ = false;
  closeTable();
  connection_.send(MonetaryInfoReq());
  connection_.send(AccountBalanceInfoReq());
  for (const int node : {HOLDEM, SIT_AND_GOES})
    connection_.send(SubscribeNodeReq(SubscriptionInfo(node, GAMES_AND_SEATS)));
  if (game_ != -1) openTable(JoinGameRequest(game_, me_.getId()));
}

void Client::handle(const Ping& message) {
  constexpr std::int64_t MILLISECONDS = 1000;
  if (settings_.isUser) CurrentServerTimeModel::setCurrentServerTime(TsTime(message.getServerTime() / MILLISECONDS));
  connection_.send(Pong(message.getServerTime(), message.getPing()));
}

void Client::handle(const ClientServerShutDown&) {
  status_ = L"The card room has closed";
  connection_.close();
}

// Money.

void Client::handle(const MonetaryInfoMsg& message) { message.getMonetaryInfo().applyTo(MoneyModel::getInstance()); }

void Client::handle(const AccountBalanceInfoMsg& message) {
  if (!settings_.isUser) return;
  TsArray<Money> balances;
  for (int i = 0; i < message.getAccountBalanceCount(); ++i) balances.add(message.getAccountBalance(i));
  UserAccountModel::getUserAccountModel().newPriorityList(balances);
}

void Client::handle(const AccountBalanceInfoUpdateAbsolute& message) {
  if (settings_.isUser) UserAccountModel::getUserAccountModel().setAccount(message.getAccountBalance());
}

// The lobby.

void Client::handle(const GameList& message) {
  lobby_.games.clear();
  for (int i = 0; i < message.getNumberOfGameInfos(); ++i) {
    const PokerGameInfo& game = message.getPokerGameInfo(i);
    lobby_.games[game.getId()] = {game.getName(), game.getNrPlayers(), game.getMaxNrPlayers()};
  }
  lookAround();
}

void Client::handle(const GameListUpdate& message) {
  for (int i = 0; i < message.getChangedGamesIds().size(); ++i) {
    const auto game = lobby_.games.find(message.getChangedGamesIds()[i]);
    if (game != lobby_.games.end()) game->second.players = message.getChangedSeats().at(i);
  }
  lookAround();
}

void Client::handle(const TourSummaryChangeList& message) {
  for (int i = 0; i < message.getNumberNewTournaments(); ++i) {
    const TourSummary& tour = message.getNewTournament(i);
    const bool isOpen = tour.getTournamentStatus().getValue() == AllowedTournamentStatus::REGISTRATION_OPEN;
    lobby_.tournaments[tour.getTournamentId()] = {tour.getNameLong(), tour.getNumberOfEntrants(), isOpen};
  }
  for (int i = 0; i < message.getNumberUpdatedTournaments(); ++i) {
    const TourSummaryUpdate& update = message.getUpdatedTournament(i);
    LobbyModel::Tournament& tour = lobby_.tournaments[update.getTournamentId()];
    tour.entrants = update.getEntrants();
    tour.isOpen = update.getStatus() == static_cast<int>(AllowedTournamentStatus::REGISTRATION_OPEN);
  }
  for (int i = 0; i < message.getNumberDeletedTournaments(); ++i)
    lobby_.tournaments.erase(message.getDeletedTournamentId(i));
  lookAround();
}

void Client::lookAround() {
  const bool hasPlans = game_ != -1 || tournament_ || isEntering_;
  if (!hasPlans && !lobby_.games.empty()) pilot_.inLobby(*this);
}

void Client::handle(const ClientChatMsg& message) {
  news_ = message.getChatMessage().getNickname() + L": " + message.getChatMessage().getMessage();
}

void Client::handle(const ClientGlobalChatMsg& message) {
  news_ = message.getChatMessage().getNickname() + L" to all: " + message.getChatMessage().getMessage();
}

// What the user asks for.

void Client::handle(const LCGotoTable& command) {
  if (game_ != -1 || tournament_) return;
  game_ = command.gameId;
  openTable(JoinGameRequest(game_, me_.getId()));
}

void Client::handle(const LCRequestAccountBalance&) { connection_.send(AccountBalanceInfoReq()); }

void Client::handle(const LCRequestGameListNode& command) {
  connection_.send(SubscribeNodeReq(SubscriptionInfo(command.getNodeId(), command.getType())));
}

void Client::handle(const LCChatMsg& command) {
  connection_.send(ServerChatMsg(ChatMessage(me_.getNickName(), command.text)));
}

void Client::handle(const TLCRegisterForTournament& command) {
  if (game_ != -1 || tournament_ || std::exchange(isEntering_, true)) return;
  connection_.send(TournamentJoinRequestMsg(me_.getId(), command.getId(), command.getPrivateTournamentPassword()));
}

void Client::handle(const TLCUnregisterForTournament& command) {
  connection_.send(TournamentUnjoinRequestMsg(me_.getId(), command.getId()));
}

// A table.

void Client::openTable(const ServerMessage& request) {
  untilTableIsOpen_.resetCondition(STATE_HAS_COME);
  untilTableIsOpen_.resetCondition(INFORMATION_HAS_COME);
  connection_.send(request);
  connection_.send(TableInfoReq());
}

void Client::stopHolding() {
  untilTableIsOpen_.setCondition(STATE_HAS_COME);
  untilTableIsOpen_.setCondition(INFORMATION_HAS_COME);
}

void Client::handle(const GameStateInfoMsg& message) {
  TableHandler::handle(message);
  untilTableIsOpen_.setCondition(STATE_HAS_COME);
}

void Client::handle(const ClientTableInfo&) {
  untilTableIsOpen_.setCondition(INFORMATION_HAS_COME);
  takePart();
}

void Client::handle(const JoinGameFailed&) {
  game_ = -1;
  stopHolding();
}

void Client::takePart() {
  constexpr std::int64_t BIG_BLINDS = 100;
  if (!table().isOpen || table().game != game_) return;
  const TableModel::Seat* seat = mySeat();
  if (seat == nullptr)
    connection_.send(SitDownRequest(table().freeSeat()));
  else if (seat->stack + seat->bet == 0)
    reserveMoney(BIG_BLINDS * table().bigBlind);
  else if (!seat->isSittingIn)
    connection_.send(ServerSitIn());
}

void Client::handle(const SitDownReply& message) {
  if (!message.getInfo().isSatDown() && mySeat() == nullptr) leaveTable();
}

void Client::handle(const PlayerSatDown& message) {
  TableHandler::handle(message);
  if (message.getInfo().getPlayerInGameInfo().getId() == me_.getId()) takePart();
}

void Client::handle(const ReserveMoneyReply& message) {
  TableHandler::handle(message);
  if (message.getReplyInfo().getPlayerInGameInfo().getId() != me_.getId()) return;
  if (message.getReplyInfo().isStatusOk())
    takePart();
  else
    leaveTable();
}

void Client::handle(const ClientBetReq& message) {
  TableHandler::handle(message);
  const BetRequestInfo& request = message.getBetRequestInfo();
  const int seat = table().seatNumberOf(me_.getId());
  if (seat == -1 || !request.isSeatRequested(seat)) return;
  if (const PlayerActionsInfo* actions = request.getPlayerActionsInfoForSeat(seat)) pilot_.toMove(*this, *actions);
}

void Client::handle(const ClientEndRound& message) {
  TableHandler::handle(message);
  if (settings_.ledger != nullptr) settings_.ledger->hand(session_, table().hand, table().stacks());
  pilot_.handEnded(*this);
  takePart();
}

void Client::handle(const PlayerIGLeft& message) {
  TableHandler::handle(message);
  if (message.getPlayerId() != me_.getId()) return;
  closeTable();
  game_ = -1;
  lookAround();
}

void Client::fold() { connection_.send(ServerFold()); }

void Client::checkOrCall(std::int64_t amount) {
  connection_.send(ServerCheckCall(me_.getId(), table().seatNumberOf(me_.getId()), amount));
}

void Client::bet(std::int64_t amount) {
  connection_.send(ServerBet(me_.getId(), table().seatNumberOf(me_.getId()), amount));
}

void Client::allIn(std::int64_t amount) {
  connection_.send(ServerAllIn(me_.getId(), table().seatNumberOf(me_.getId()), amount));
}

void Client::reserveMoney(std::int64_t amount) { connection_.send(ReserveMoney(amount)); }

void Client::leaveTable() { connection_.send(PlayerLeaveGame()); }

// A tournament.

void Client::handle(const TournamentJoinReplyMsg& message) {
  constexpr int ACCEPTED = 0;
  isEntering_ = false;
  if (message.getJoinReq().getReplyStatus() == ACCEPTED) followTournament(message.getJoinReq().getTournamentId());
}

// The server tells it after each login.
void Client::handle(const EnteredTourListMsg& message) {
  leaveTournament();
  if (message.getNumberTours() == 0) return lookAround();
  const int id = message.getEnteredTour(0).getTournamentId();
  followTournament(id);
  connection_.send(TournamentLobbyReq(me_.getId(), id));
}

void Client::followTournament(int id) {
  leaveTournament();
  tournament_.emplace(id);
  follow(*tournament_);
  pilot_.follows(&*tournament_);
}

void Client::leaveTournament() {
  unfollow();
  pilot_.follows(nullptr);
  tournament_.reset();
}

void Client::handle(const SpecificTourSummary& message) {
  TableHandler::handle(message);
  const int tableId = message.getPlayerInfo().getTableIdForUser();
  if (tableId != -1 && !table().isOpen) openTournamentTable(tableId);
}

void Client::handle(const LobbyTourInvitationMsg& message) {
  openTournamentTable(message.getInvitation().getTableId());
}

void Client::openTournamentTable(int tableId) {
  if (tournament_) openTable(TournamentTableReqMsg(me_.getId(), tournament_->getTournamentId(), tableId));
}

void Client::handle(const TourKnockoutInfo& message) {
  TableHandler::handle(message);
  news_ = formatText(L"%s ends in place %d", message.getPlayerName(), message.getFinalPosition());
  if (message.getPlayerId() != me_.getId()) return;
  leaveTournament();
  lookAround();
}

}  // namespace CardRoom
