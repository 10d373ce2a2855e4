#include "Room.h"

#include <herald/messages/AccountEvents.h>
#include <herald/messages/ChatEvents.h>
#include <herald/messages/JoinEvents.h>
#include <herald/messages/LobbyEvents.h>
#include <herald/messages/SeatEvents.h>
#include <herald/messages/TournamentLobbyEvents.h>
#include <herald/platform/keystone/BugReporter.h>
#include <herald/platform/keystone/Format.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "../common/Wire.h"

using namespace Tessel;

namespace CardRoom {

namespace {

constexpr int FIRST_MEMBER = 1001;
constexpr int FIRST_TABLE = 7301;
constexpr int HANDS_A_TABLE = 10'000'000;
constexpr int FIRST_TOURNAMENT_HAND = 1'500'000'000;
constexpr int HANDS_A_TOURNAMENT = 1000;
/// What a member gets who comes, and again when less than the lower amount is left. In cents.
constexpr std::int64_t GIFT = 1'000'000;
constexpr std::int64_t TOO_LITTLE = 20'000;
/// The other id of the message belongs to the scheduled tournaments.
constexpr int SIT_AND_GO_CHANGES = -72;

enum SitDownStatus { SAT_DOWN = 0, SEAT_TAKEN = 1 };
enum ReplyStatus { ACCEPTED = 0, REFUSED = 1 };

std::int64_t milliseconds() {
  using namespace std::chrono;
  return duration_cast<std::chrono::milliseconds>(system_clock::now().time_since_epoch()).count();
}

std::vector<Game> ringGames(int count) {
  std::vector<Game> games;
  games.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i)
    games.push_back({.id = FIRST_TABLE + i, .name = formatText(L"Table %d", i + 1), .bigBlind = 100, .maxPlayers = 6});
  return games;
}

Body joinReply(const TournamentJoinRequest& request, ReplyStatus status) {
  return Body()
      .i32(request.getPlayerId())
      .i32(request.getTournamentId())
      .i32(request.getTableId())
      .i8(status)
      .text(request.getPassword());
}

}  // namespace

Room::Room(asio::io_context& io, const Options& options)
    : io_(io), options_(options), lobby_(HOLDEM, ringGames(options.tables)) {
  int hand = 1;
  for (const Game& game : lobby_.games()) {
    tables_.emplace_back(io_, *this, game, options_.pace, hand, options_.seed + static_cast<std::uint32_t>(game.id),
                         [this](LiveTable& table) { noteHand(table); });
    hand += HANDS_A_TABLE;
  }
  openSitAndGo();
}

// Connections and members.

void Room::requested(Session& session, const RequestFrames::Frame& frame) {
  if (frame.id == LoginRequest::ID) return logIn(session, frame.body);
  ByteStream body = ByteStream::view(frame.body);
  const DecodedRequest decoded = decodeRequest(frame.id, body);
  Member* member = memberOf(session);
  if (member == nullptr || decoded.request == nullptr || !answer(*member, *decoded.request))
    Log::append(formatText(L"A request %d is not answered. %s", frame.id, decoded.reason), L"card_room/Room", 3);
}

void Room::logIn(Session& session, std::span<const std::uint8_t> body) {
  ByteStream stream = ByteStream::view(body);
  LoginInfo login;
  if (!login.read(stream)) return session.drop();
  const int newId = FIRST_MEMBER + static_cast<int>(members_.size());
  const int id = idsByNick_.try_emplace(login.getNick(), newId).first->second;
  Member& member = members_[id];
  if (id == newId) member.person = {id, login.getNick(), login.getCity()};
  if (member.session) member.session->drop();
  member.session = session.shared_from_this();
  playersBySession_[session.id()] = id;
  tell<ConnectOk>(member, Body().i32(id).text(member.person.nick).text(member.person.city).i64(session.id()));
  tellEntered(member);
  refill(member);
}

void Room::tellEntered(const Member& member) {
  if (member.tournament == nullptr) return tell<EnteredTourListMsg>(member, Body().i16(0));
  const std::wstring name = member.tournament->tournament().summaryFor(member.person.id).name;
  tell<EnteredTourListMsg>(member, Body().i16(1).i32(member.tournament->id()).i16(SIT_AND_GOES).text(name));
}

Room::Member* Room::memberOf(const Session& session) {
  const auto player = playersBySession_.find(session.id());
  return player == playersBySession_.end() ? nullptr : &members_.at(player->second);
}

void Room::ended(Session& session) {
  Member* member = memberOf(session);
  playersBySession_.erase(session.id());
  if (member == nullptr) return;
  member->session.reset();
  member->lastSeen = std::chrono::steady_clock::now();
  member->nodes.clear();
  if (member->table != nullptr) member->table->unlisten(member->person.id);
  if (member->tournament != nullptr) member->tournament->unlisten(member->person.id);
}

void Room::send(int player, int messageId, const Body& body) {
  const Member& member = members_.at(player);
  if (member.session) member.session->send(messageId, body.bytes());
}

bool Room::isConnected(int player) const {
  const Member& member = members_.at(player);
  return member.session && member.session->isOpen();
}

template <class... Requests>
bool Room::answerOneOf(Member& member, const ServerMessage& request) {
  const auto answerAs = [&]<class Request>(const Request* own) {
    if (own != nullptr) answer(member, *own);
    return own != nullptr;
  };
  return (answerAs(dynamic_cast<const Requests*>(&request)) || ...);
}

bool Room::answer(Member& member, const ServerMessage& request) {
  return answerOneOf<ServerCheckCall, ServerFold, ServerBet, ServerAllIn, Pong, JoinGameRequest, TableInfoReq,
                     SitDownRequest, ReserveMoney, ServerSitIn, ServerSitOut, PlayerLeaveGame, ServerChatMsg,
                     MonetaryInfoReq, AccountBalanceInfoReq, GetTreeReq, SubscribeNodeReq, UnSubscribeNodeReq,
                     ServerGlobalChatMsg, TournamentLobbyReq, TournamentJoinRequestMsg, TournamentUnjoinRequestMsg,
                     TournamentTableReqMsg>(member, request);
}

void Room::ping() {
  for (const auto& [id, member] : members_) tell<Ping>(member, Body().i64(milliseconds()).i16(member.ping));
}

void Room::answer(Member& member, const Pong& request) {
  constexpr std::int64_t LONGEST = 30'000;
  member.ping = static_cast<int>(std::clamp(milliseconds() - request.getServerTime(), std::int64_t{0}, LONGEST));
}

// The lobby and the accounts.

void Room::refill(Member& member) {
  if (member.table != nullptr || member.account >= TOO_LITTLE) return;
  member.account += GIFT;
  given_ += GIFT;
}

void Room::tellBalance(const Member& member) {
  const Player* seated = member.table == nullptr ? nullptr : member.table->table().find(member.person.id);
  const bool isRingTable = seated != nullptr && member.table->table().game().unit == EURO;
  const std::int64_t balance = member.account + (isRingTable ? seated->account : 0);
  tell<AccountBalanceInfoUpdateAbsolute>(member, Body().money({balance, EURO}));
}

void Room::answer(Member& member, const MonetaryInfoReq&) { tell<MonetaryInfoMsg>(member, monetaryInfo()); }

void Room::answer(Member& member, const AccountBalanceInfoReq&) {
  tell<AccountBalanceInfoMsg>(member, Body().i8(1).money({0, EURO}));
  tellBalance(member);
}

void Room::answer(Member& member, const GetTreeReq&) {
  tell<TreeReply>(member, tree({ROOT,
                                L"Card room",
                                PLAIN,
                                LOBBY_ROOT,
                                {{HOLDEM, L"Texas Hold'em", SUBSCRIBABLE | LAST_SELECTED, LOBBY_RING_GAME},
                                 {SIT_AND_GOES, L"Sit & Go", SUBSCRIBABLE, LOBBY_SIT_AND_GO}}}));
}

void Room::answer(Member& member, const SubscribeNodeReq& request) {
  const int node = request.getSubscriptionInfo().getNodeId();
  member.nodes.insert(node);
  if (node == HOLDEM) tell<GameList>(member, lobby_.list());
  if (node != SIT_AND_GOES) return;
  std::vector<Body> summaries;
  for (SitAndGo& tournament : tournaments_)
    summaries.push_back(summary(tournament.tournament().summaryFor(member.person.id)));
  send(member.person.id, SIT_AND_GO_CHANGES, Body().i16(SIT_AND_GOES).list<std::int16_t>(summaries).i16(0).i16(0));
}

void Room::answer(Member& member, const UnSubscribeNodeReq& request) {
  const SubscriptionInfo& subscription = request.getSubscriptionInfo();
  member.nodes.erase(subscription.getNodeId());
  tell<UnSubscribeNode>(member, Body().i16(subscription.getNodeId()).i8(subscription.getType()));
}

void Room::tellLobbyChanges() {
  if (!lobby_.hasChanged()) return;
  const Body update = lobby_.update();
  for (const auto& [id, member] : members_)
    if (member.nodes.contains(HOLDEM)) tell<GameListUpdate>(member, update);
}

void Room::answer(Member&, const ServerGlobalChatMsg& request) {
  for (const auto& [id, other] : members_) tell<ClientGlobalChatMsg>(other, Body().record(request.getChatMessage()));
}

// Ring games.

LiveTable* Room::ringTable(int id) {
  const auto found = std::ranges::find(tables_, id, [](const LiveTable& table) { return table.table().game().id; });
  return found == tables_.end() ? nullptr : &*found;
}

void Room::answer(Member& member, const JoinGameRequest& request) {
  const int player = member.person.id;
  LiveTable* const table = ringTable(request.getJoinRequest().getGameID());
  const bool isElsewhere = member.tournament != nullptr || (member.table != nullptr && member.table != table);
  if (table == nullptr || isElsewhere) return tell<JoinGameFailed>(member, Body().record(request.getJoinRequest()));
  if (member.table == nullptr) {
    refill(member);
    table->table().enter(member.person, std::exchange(member.account, 0));
    member.table = table;
  }
  tellBalance(member);
  table->listen(player);
}

void Room::answer(Member& member, const TableInfoReq&) {
  if (member.table != nullptr) member.table->table().tellTableInfo(member.person.id);
}

void Room::answer(Member& member, const SitDownRequest& request) {
  if (member.table == nullptr) return;
  Table& table = member.table->table();
  const int seat = request.getSeat();
  const bool isFree = std::ranges::find(table.players(), seat, &Player::seat) == table.players().end();
  const bool isSeated = table.player(member.person).seat != Player::NO_SEAT;
  if (!isFree || isSeated || seat < 0 || seat >= table.game().maxPlayers)
    return tell<SitDownReply>(member, Body().i8(SEAT_TAKEN));
  tell<SitDownReply>(member, Body().i8(SAT_DOWN));
  table.sitDown(member.person, seat);
  lobby_.seat(table.game().id, 1);
}

void Room::answer(Member& member, const ReserveMoney& request) {
  if (member.table == nullptr || member.tournament != nullptr) return;
  if (request.getAmount() > 0) member.table->takeMoney(member.person.id, request.getAmount());
  tellBalance(member);
}

void Room::answer(Member& member, const ServerSitIn&) {
  if (member.table == nullptr) return;
  Table& table = member.table->table();
  const Player& player = table.player(member.person);
  if (player.seat == Player::NO_SEAT || player.sittingIn) return;
  table.sitIn(member.person, false);
  member.table->play();
}

void Room::answer(Member& member, const ServerSitOut&) {
  constexpr int WISHED = 1;
  if (member.table == nullptr || member.tournament != nullptr) return;
  if (member.table->table().player(member.person).sittingIn) member.table->table().sitOut(member.person, WISHED);
}

void Room::answer(Member& member, const PlayerLeaveGame&) {
  if (member.table == nullptr || member.tournament != nullptr) return;
  const int player = member.person.id;
  const int game = member.table->table().game().id;
  const bool wasSeated = member.table->table().player(player).seat != Player::NO_SEAT;
  member.table->leave(player, [this, player, game, wasSeated](std::int64_t account) {
    Member& left = members_.at(player);
    left.table = nullptr;
    left.account += account;
    if (wasSeated) lobby_.seat(game, -1);
    tellBalance(left);
  });
}

void Room::answer(Member& member, const ServerChatMsg& request) {
  if (member.table == nullptr) return;
  member.table->table().tell<ClientChatMsg>(Body().record(request.getChatMessage()));
}

void Room::answer(Member& member, const ServerFold&) {
  if (member.table != nullptr) member.table->move(member.person.id, Move::FOLD, 0);
}

void Room::answer(Member& member, const ServerCheckCall&) {
  if (member.table != nullptr) member.table->move(member.person.id, Move::CHECK_OR_CALL, 0);
}

void Room::answer(Member& member, const ServerBet& request) {
  const std::int64_t chips = request.getCreditInfo().getAmount();
  if (member.table != nullptr) member.table->move(member.person.id, Move::RAISE, chips);
}

void Room::answer(Member& member, const ServerAllIn&) {
  if (member.table != nullptr) member.table->move(member.person.id, Move::ALL_IN, 0);
}

void Room::noteHand(LiveTable& table) {
  ++handsPlayed_;
  if (options_.ledger == nullptr) return;
  std::map<int, std::int64_t> stacks;
  for (const Player& player : table.table().players())
    if (player.seat != Player::NO_SEAT) stacks[player.person.id] = player.stack;
  options_.ledger->hand(0, table.table().handNumber(), stacks);
}

// Tournaments.

SitAndGo* Room::sitAndGo(int id) {
  const auto found = std::ranges::find(tournaments_, id, &SitAndGo::id);
  return found == tournaments_.end() ? nullptr : &*found;
}

void Room::openSitAndGo() {
  const int number = (nextTournament_ - 30'000) / 2;
  const TournamentSummary announced = {.id = nextTournament_,
                                       .attributes = TournamentSummary::SIT_AND_GO,
                                       .name = formatText(L"Sit & Go %d", number + 1),
                                       .description = L"Begins when five have entered",
                                       .tableName = L"Sit & Go, table",
                                       .status = AllowedTournamentStatus::REGISTRATION_OPEN,
                                       .maxEntrants = PLAYERS_PER_TABLE};
  nextTournament_ += 2;
  const auto paid = [this](const Person& person, std::int64_t prize) {
    Member& member = members_.at(person.id);
    member.account += prize;
    member.tournament->unlisten(person.id);
    member.tournament = nullptr;
    member.table = nullptr;
    tellBalance(member);
  };
  tournaments_.emplace_back(io_, *this, announced, options_.pace, FIRST_TOURNAMENT_HAND + number * HANDS_A_TOURNAMENT,
                            options_.seed + static_cast<std::uint32_t>(announced.id),
                            SitAndGo::Events{paid, [this](SitAndGo& tournament) { tournamentChanged(tournament); },
                                             [this](LiveTable& table) { noteHand(table); }});
  tellTournaments({summary(announced)}, {}, {});
}

void Room::tellTournaments(const std::vector<Body>& added, const std::vector<Body>& changed,
                           const std::vector<int>& removed) {
  Body body;
  body.i16(SIT_AND_GOES).list<std::int16_t>(added).list<std::int16_t>(changed);
  body.list<std::int16_t, std::int32_t>(removed);
  for (const auto& [id, member] : members_)
    if (member.nodes.contains(SIT_AND_GOES)) send(id, SIT_AND_GO_CHANGES, body);
}

void Room::tournamentChanged(SitAndGo& tournament) {
  tellTournaments({}, {summaryUpdate(tournament.tournament().summaryFor(0))}, {});
  if (tournament.isOver()) {
    ++tournamentsPlayed_;
    // Later: its last hand is just ending.
    asio::post(io_, [this, id = tournament.id()] {
      tellTournaments({}, {}, {id});
      tournaments_.remove_if([id](const SitAndGo& one) { return one.id() == id; });
    });
  }
  const bool isAnyOpen = std::ranges::any_of(tournaments_, [](const SitAndGo& one) { return one.isOpen(); });
  if (!isAnyOpen && !isClosed_) openSitAndGo();
}

void Room::answer(Member& member, const TournamentLobbyReq& request) {
  SitAndGo* const tournament = sitAndGo(request.getJoinReq().getTournamentId());
  tell<TournamentLobbyReply>(member, joinReply(request.getJoinReq(), tournament == nullptr ? REFUSED : ACCEPTED));
  if (tournament != nullptr && member.tournament == tournament) tournament->listen(member.person.id);
}

void Room::answer(Member& member, const TournamentJoinRequestMsg& request) {
  constexpr std::int64_t COST = TournamentSummary::BUY_IN + TournamentSummary::FEE;
  refill(member);
  SitAndGo* const tournament = sitAndGo(request.getJoinReq().getTournamentId());
  const bool isAccepted = tournament != nullptr && tournament->isOpen() && member.tournament == nullptr
                          && member.table == nullptr && member.account >= COST && !isClosed_;
  tell<TournamentJoinReplyMsg>(member, joinReply(request.getJoinReq(), isAccepted ? ACCEPTED : REFUSED));
  if (!isAccepted) return;
  member.account -= COST;
  fees_ += TournamentSummary::FEE;
  member.tournament = tournament;
  tellBalance(member);
  tournament->listen(member.person.id);
  tournament->enter(member.person);
}

void Room::answer(Member& member, const TournamentUnjoinRequestMsg& request) {
  constexpr std::int64_t COST = TournamentSummary::BUY_IN + TournamentSummary::FEE;
  SitAndGo* const tournament = sitAndGo(request.getJoinReq().getTournamentId());
  const bool isAccepted = tournament != nullptr && tournament == member.tournament && tournament->isOpen();
  tell<TournamentUnjoinReplyMsg>(member, joinReply(request.getJoinReq(), isAccepted ? ACCEPTED : REFUSED));
  if (!isAccepted) return;
  tournament->unlisten(member.person.id);
  tournament->withdraw(member.person);
  member.tournament = nullptr;
  member.account += COST;
  fees_ -= TournamentSummary::FEE;
  tellBalance(member);
}

void Room::answer(Member& member, const TournamentTableReqMsg& request) {
  const TournamentJoinRequest& wanted = request.getJoinReq();
  LiveTable* const table = member.tournament == nullptr ? nullptr : member.tournament->table();
  if (table == nullptr || member.tournament->id() != wanted.getTournamentId())
    return tell<JoinGameFailed>(member, Body().i32(wanted.getTableId()).i32(member.person.id));
  member.table = table;
  table->listen(member.person.id);
}

// The end.

template <class Visit>
void Room::forEachTable(const Visit& visit) const {
  for (const LiveTable& table : tables_) visit(const_cast<LiveTable&>(table));
  for (const SitAndGo& tournament : tournaments_)
    if (LiveTable* table = const_cast<SitAndGo&>(tournament).table()) visit(*table);
}

void Room::close() {
  isClosed_ = true;
  forEachTable([](LiveTable& table) { table.stop(); });
  for (const auto& [id, member] : members_)
    if (member.session) member.session->calm();
}

bool Room::isHandRunning() const {
  bool isRunning = false;
  forEachTable([&](const LiveTable& table) { isRunning |= table.table().isHandRunning(); });
  return isRunning;
}

bool Room::isEveryoneConnected() const {
  constexpr auto LONG = std::chrono::seconds(8);
  return std::ranges::all_of(members_, [&](const auto& entry) {
    const auto& [id, member] = entry;
    return isConnected(id) || (!member.session && std::chrono::steady_clock::now() - member.lastSeen > LONG);
  });
}

void Room::sayGoodBye() {
  for (const auto& [id, member] : members_) {
    if (!isConnected(id)) continue;
    tell<ClientServerShutDown>(member);
    if (options_.ledger != nullptr) options_.ledger->complete(member.session->id());
    const std::shared_ptr<Session> session = member.session;
    session->close();
  }
}

void Room::checkMoney() const {
  std::int64_t money = fees_;
  for (const auto& [id, member] : members_) money += member.account;
  for (const LiveTable& table : tables_) money += table.table().chips();
  for (const SitAndGo& tournament : tournaments_) money += tournament.money();
  if (money != given_) throw std::logic_error("money was made or lost");
}

}  // namespace CardRoom
