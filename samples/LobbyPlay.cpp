#include <herald/messages/AccountEvents.h>
#include <herald/messages/ChatEvents.h>
#include <herald/messages/JoinEvents.h>
#include <herald/messages/LobbyEvents.h>
#include <herald/messages/LobbyRequests.h>
#include <herald/messages/PrivateGameEvents.h>
#include <herald/messages/PrivateGameRequests.h>
#include <herald/messages/TableRequests.h>
#include <herald/messages/info_objects/InfoVector.h>
#include <herald/messages/info_objects/SettingsInfo.h>

#include <algorithm>
#include <map>
#include <stdexcept>
#include <utility>
#include <vector>

#include "Capture.h"
#include "People.h"
#include "Plays.h"
#include "engine/Lobby.h"

namespace Samples {

using namespace CardRoom;
using namespace Tessel;

namespace {

enum Node { ROOT = 1, RING_GAMES = 10, HOLDEM = 11, OMAHA = 12, DRAW = 13, PRIVATE_TABLES = 14, TOURNAMENTS = 20 };
using JoinStatus = JoinRequestStatus::Status;

TreeNode lobbyTree() {
  const std::vector<TreeNode> ringGames = {{HOLDEM, L"Texas Hold'em", SUBSCRIBABLE | LAST_SELECTED, LOBBY_RING_GAME},
                                           {OMAHA, L"Omaha", SUBSCRIBABLE, LOBBY_RING_GAME},
                                           {DRAW, L"Five Card Draw", SUBSCRIBABLE, LOBBY_RING_GAME}};
  const std::vector<TreeNode> tournaments = {{21, L"Scheduled", SUBSCRIBABLE, LOBBY_SCHEDULED},
                                             {22, L"Sit & Go", SUBSCRIBABLE, LOBBY_SIT_AND_GO}};
  return {ROOT,
          L"Card room",
          PLAIN,
          LOBBY_ROOT,
          {{RING_GAMES, L"Ring games", PLAIN, LOBBY_RING_GAME, ringGames},
           {TOURNAMENTS, L"Tournaments", PLAIN, LOBBY_SCHEDULED, tournaments}}};
}

Body chat(const Person& person, std::wstring_view text) { return Body().record(ChatMessage(person.nick, text)); }

Body playerInfo(const Person& person, int gameId) {
  return Body().record(PlayerInfo(person.id, person.nick, person.city, 45, gameId, L""));
}

Body joinRequest(int gameId, int playerId) { return Body().record(JoinRequest(gameId, playerId)); }

struct Vip {
  enum Kind { GOLD = 2, SILVER = 4 };
  Person person;
  int kind;
  int gameId = -1;

  bool isPlaying() const { return gameId != -1; }
};

Body vipInfo(const std::vector<Vip>& vips) {
  std::vector<Body> infos;
  for (const Vip& vip : vips) {
    Body& info = infos.emplace_back();
    info.i32(vip.person.id).flag(vip.isPlaying()).i8(vip.isPlaying() ? 1 : 0);
    if (vip.isPlaying()) info.i32(vip.gameId);
    info.i32(vip.kind).text(vip.person.nick).i32(1);
  }
  return infoVector(InfoVector::VIPPlayerInfoTypeString, infos);
}

class LobbyPlay {
 public:
  explicit LobbyPlay(Capture& capture) : capture_(capture) {}

  void play() {
    connect();
    askForMoney();
    browse();
    watchGames();
    joinGames();
    waitForSeat();
    visitCashier();
    chatWithOthers();
    meetVips();
    hostPrivateTable();
    joinPrivateTable();
    closeDown();
  }

 private:
  void connect() {
    constexpr std::int64_t SESSION = 8'812'604'417;
    capture_.server<ConnectOk>(Body().i32(USER.id).text(USER.nick).text(USER.city).i64(SESSION));
    capture_.server<ClientExtendedWelcomeMessage>(Body().text(L"Welcome back! Tonight: the Spring Sit & Go series."));
    SettingsInfo settings;
    settings.set(SettingsInfo::SOUND | SettingsInfo::ANIMATIONS | SettingsInfo::MUCK_LOSING);
    capture_.client(ServerSettings(settings.getUINTFormat()));
  }

  void askForMoney() {
    capture_.client(MonetaryInfoReq());
    capture_.server<MonetaryInfoMsg>(monetaryInfo());
    capture_.client(AccountBalanceInfoReq());
    capture_.server<AccountBalanceInfoMsg>(Body().list<std::int8_t>(balances_, [](Body& body, const auto& balance) {
      body.money({balance.second, balance.first});
    }));
  }

  void browse() {
    capture_.client(GetTreeReq());
    capture_.server<TreeReply>(tree(tree_));
    capture_.client(SubscribeNodeReq(SubscriptionInfo(HOLDEM, GAMES_AND_SEATS)));
    capture_.server<GameList>(holdem_.list());
    ping(38);
  }

  void ping(int milliseconds) {
    capture_.pause(30'000);
    const std::int64_t sent = capture_.now();
    capture_.server<Ping>(Body().i64(sent).i16(milliseconds));
    capture_.client(Pong(sent, milliseconds));
  }

  void watchGames() {
    capture_.pause(4000);
    holdem_.seat(7301, 1);
    holdem_.seat(7303, -2);
    capture_.server<GameListUpdate>(holdem_.update());
    holdem_.close(7303);
    holdem_.open(
        {.id = 7305, .name = L"Μελτέμι", .limit = AllowedLimitType::POT_LIMIT, .bigBlind = 200, .maxPlayers = 9});
    capture_.server<GameListUpdate>(holdem_.update());
    holdem_.seat(7305, 3);
    holdem_.seat(7302, -1);
    capture_.server<GameListUpdate>(holdem_.update());

    tree_.subNodes[0].subNodes.push_back(
        {PRIVATE_TABLES, L"Private tables", SUBSCRIBABLE | PRIVATE_NODE, LOBBY_RING_GAME});
    capture_.server<TreeReplyUpdate>(tree(tree_));

    const SubscriptionInfo omaha(OMAHA, GAMES_AND_SEATS);
    capture_.client(SubscribeNodeReq(omaha));
    capture_.server<GameList>(omaha_.list());
    capture_.client(GameListRequestMsg());
    for (const GameNode* node : {&holdem_, &omaha_}) capture_.server<GameList>(node->list());
    capture_.client(UnSubscribeNodeReq(omaha));
    capture_.server<UnSubscribeNode>(Body().i16(OMAHA).i8(GAMES_AND_SEATS));
    ping(52);
  }

  static Money moneyOf(const Person& person, const Game& game) {
    return {std::int64_t{100} * (person.id % 97), game.unit};
  }

  // A table's lobby: who plays and who waits there.
  Body lobbyInfo(const Game& game) const {
    if (std::ssize(seated_) != game.players) throw std::logic_error("seats that are not there");
    std::vector<Body> players;
    std::vector<Body> waiting;
    for (const Person& person : seated_) players.push_back(playerInGame(person, moneyOf(person, game), game.id));
    for (const Person& person : waiting_) waiting.push_back(playerInfo(person, game.id));
    return Body().i32(game.id).list<std::int8_t>(players).list<std::int8_t>(waiting).text(game.name);
  }

  void joinGames() {
    const Game& game = holdem_.game(7302);
    capture_.client(JoinLobbyRequest(game.id));
    capture_.server<LobbyInfoMsg>(Body().fields(lobbyInfo(game)).fields(pokerRules(game)).i64(1240).i32(86).i32(31));
    std::vector<Body> pings;
    for (const Person& person : seated_)
      pings.push_back(Body().text(person.nick).i16(20 + person.id % 60).money(moneyOf(person, game)));
    capture_.server<PingInfo>(Body().list<std::int16_t>(pings).i32(game.id));
    // A table that has closed since.
    capture_.client(JoinLobbyRequest(7303));
    capture_.server<JoinLobbyFailed>(joinRequest(7303, -1));
    capture_.client(JoinGameRequest(7303, USER.id));
    capture_.server<JoinGameFailed>(joinRequest(7303, USER.id));
  }

  // The table fills before the user sits down; the first in the waiting list gets the next free seat.
  void waitForSeat() {
    const int id = 7302;
    seated_.push_back(KWAME);
    holdem_.seat(id, 1);
    capture_.server<GameListUpdate>(holdem_.update());

    waiting_ = {OMAR};
    capture_.client(JoinWaitingReq());
    waiting_.push_back(USER);
    capture_.server<JoinWaitingOk>(lobbyInfo(holdem_.game(id)));
    capture_.client(LeaveWaitingReq());
    std::erase_if(waiting_, [](const Person& person) { return person.id == USER.id; });
    capture_.client(JoinWaitingReq());
    capture_.server<JoinWaitingFail>(joinRequest(id, USER.id));
    capture_.pause(5000);
    capture_.client(JoinWaitingReq());
    waiting_.push_back(USER);
    capture_.server<JoinWaitingOk>(lobbyInfo(holdem_.game(id)));

    while (waiting_.front().id != USER.id) {
      capture_.pause(40'000);
      seated_.front() = waiting_.front();
      waiting_.erase(waiting_.begin());
    }
    seated_.erase(seated_.begin() + 1);
    holdem_.seat(id, -1);
    capture_.server<GameListUpdate>(holdem_.update());
    capture_.server<JoinAvailable>(pokerGame(holdem_.game(id)));
    capture_.client(JoinGameRequest(id, USER.id));
    waiting_.clear();
    seated_.push_back(USER);
    holdem_.seat(id, 1);
    capture_.server<GameListUpdate>(holdem_.update());
  }

  void changeBalance(int unit, std::int64_t change) {
    balances_.at(unit) += change;
    if (balances_.at(unit) < 0) throw std::logic_error("money that is not there");
    capture_.server<AccountBalanceInfoUpdateRelative>(Body().money({change, unit}));
  }

  void tellBalance(int unit) {
    capture_.server<AccountBalanceInfoUpdateAbsolute>(Body().money({balances_.at(unit), unit}));
  }

  void askCashier(const Game& game) {
    capture_.client(ShowCashierReq());
    const std::int64_t account = balances_.at(game.unit);
    if (account < game.minBuyIn())
      capture_.server<ShowCashierFailedMoney>(cashier(game, account));
    else
      capture_.server<ShowCashierOk>(cashier(game, account));
  }

  void visitCashier() {
    const Game& game = holdem_.game(7302);
    askCashier(game);
    capture_.client(ReserveMoney(game.maxBuyIn()));
    changeBalance(game.unit, -game.maxBuyIn());
    askCashier(omaha_.game(7401));
    capture_.client(ShowCashierReq());
    capture_.server<ShowCashierFailedSystem>();
    // The user leaves the table with a win, and play money is refilled for free.
    changeBalance(game.unit, game.maxBuyIn() + 3'450);
    tellBalance(game.unit);
    balances_.at(PLAY_CHIPS) = 100'000;
    tellBalance(PLAY_CHIPS);
  }

  void say(std::wstring_view text) {
    capture_.client(ServerChatMsg(ChatMessage(USER.nick, text)));
    capture_.server<ClientChatMsg>(chat(USER, text));
  }

  void chatWithOthers() {
    capture_.server<ClientChatMsg>(chat(XIAOMING, L"大家好！"));
    capture_.server<ClientChatMsg>(chat(OMAR, L"مساء الخير"));
    say(L"Hi all, nice to see you again \U0001F642");
    capture_.server<ClientChatMsg>(
        chat(ALISA, L"\U0001F0A1\U0001F0AE\U0001F0AD\U0001F0AB\U0001F0AA at last, and nobody called"));
    capture_.client(ServerGlobalChatMsg(USER.nick, L"Anyone for draw poker tonight?"));
    capture_.server<ClientGlobalChatMsg>(chat(USER, L"Anyone for draw poker tonight?"));
    capture_.server<ClientGlobalChatMsg>(chat(AASE, L"Gjerne! Bord «Nordlys», klokka åtte"));
    capture_.client(ServerChatMsg(ChatMessage(USER.nick, L"what a $%&! river")));
    capture_.server<AbusiveChatWarning>();
    capture_.server<ClientChatMsg>(chat({0, L"Card room", L""}, L"^Please stay polite at the tables."));
    ping(41);
  }

  void meetVips() {
    std::vector<Vip> vips = {{ELENI, Vip::GOLD, 7302}, {JOKER, Vip::GOLD | Vip::SILVER}};
    capture_.client(VIPRequest());
    capture_.server<VIPInfo>(vipInfo(vips));
    vips.push_back({CHLOE, Vip::SILVER});
    capture_.server<VIPLoginAnnounce>(Body().text(CHLOE.nick));
    capture_.server<VIPInfo>(vipInfo(vips));
    capture_.client(UnSubscribeVIPs());
    capture_.server<AdminNotificationMsg>(Body().text(L"The lobby server goes down for maintenance at 23:30 UTC."));
  }

  // What the server lets a host choose from.
  static Body privateSettings() {
    std::vector<Body> settings;
    const auto add = [&](AllowedGameType type, AllowedLimitType limit, int unit, std::int64_t lower) {
      Body& setting = settings.emplace_back();
      setting.i32(std::ssize(settings)).i8(type).i8(limit).text(nameOf(type)).i16(unit).i64(lower).i64(2 * lower);
    };
    add(AllowedGameType::TEXAS_HOLDEM, AllowedLimitType::NO_LIMIT, EURO, 25);
    add(AllowedGameType::OMAHA, AllowedLimitType::POT_LIMIT, DOLLAR, 50);
    add(AllowedGameType::FIVE_CARD_DRAW, AllowedLimitType::LIMIT, PLAY_CHIPS, 1000);
    return infoVector(InfoVector::PGSettingsInfoTypeString, settings);
  }

  void hostPrivateTable() {
    capture_.client(PGGamesSettingsListReq());
    capture_.server<PGGamesSettingsList>(privateSettings());
    const Game table = {.id = 7501,
                        .name = L"Friday friends",
                        .bigBlind = 50,
                        .maxPlayers = 6,
                        .flags = Game::FAST | Game::PRIVATE | Game::MODERATED};
    capture_.client(PGCreateGameReq(PGSettings(1, table.maxPlayers, PGSettings::JoinType{1},
                                               std::wstring_view(table.name), PokerGameInfo::GameSpeed{Game::FAST})));
    capture_.server<PGCreateGameReply>(pokerGame(table));
    capture_.server<PGPromotedModerator>(Body().i32(USER.id));

    guestAsks(CHLOE, L"It's me, from work");
    answer(CHLOE, JoinStatus::OK);
    guestAsks(JOKER, L"let me in!!!");
    answer(JOKER, JoinStatus::REFUSED_DENIED);
    guestAsks(DUC, L"Chào Marigold");
    capture_.pause(60'000);
    capture_.server<PGPlayerReqTimedOut>(Body().i32(DUC.id));
  }

  void guestAsks(const Person& person, std::wstring_view text) {
    capture_.pause(9000);
    capture_.server<PGPlayerReqToJoinGame>(Body().fields(playerInfo(person, 7501)).text(text));
  }

  void answer(const Person& person, JoinStatus status) {
    capture_.client(PGPlayerJoinRequestReply(JoinRequestStatus(status), person.id));
  }

  void joinPrivateTable() {
    const PlayerInfo user(USER.id, USER.nick, USER.city, 45, 7502, L"");
    const auto ask = [&] { capture_.client(PGJoinGameReq(user, L"May I join you?")); };
    for (const JoinStatus status : {JoinStatus::REFUSED_NO_ANSWER, JoinStatus::REFUSED_DENIED}) {
      ask();
      capture_.pause(15'000);
      capture_.server<PGJoinRequestReply>(Body().i8(status));
    }
    ask();
    capture_.client(PGPlayerCancelJoinGameGameReq());
    ask();
    capture_.server<PGJoinRequestReply>(Body().i8(JoinStatus::OK));
  }

  void closeDown() {
    ping(44);
    capture_.server<AdminNotificationMsg>(Body().text(L"Good night, and thank you for playing."));
    capture_.server<ClientServerShutDown>();
  }

  Capture& capture_;
  std::map<int, std::int64_t> balances_ = {{EURO, 48'250}, {DOLLAR, 1'175}, {PLAY_CHIPS, 640}};
  TreeNode tree_ = lobbyTree();
  GameNode holdem_ = {
      HOLDEM,
      {{.id = 7301, .name = L"Nordlys", .ante = 10, .players = 5, .watching = 2, .flags = Game::BOOTABLE},
       {.id = 7302, .name = L"Südwind", .players = 6, .watching = 1},
       {.id = 7303, .name = L"Škorpion", .bigBlind = 50, .players = 2, .flags = Game::FAST}}};
  GameNode omaha_ = {OMAHA,
                     {{.id = 7401,
                       .name = L"おまは",
                       .type = AllowedGameType::OMAHA,
                       .limit = AllowedLimitType::POT_LIMIT,
                       .unit = DOLLAR,
                       .bigBlind = 200,
                       .players = 4}}};
  std::vector<Person> seated_ = {AASE, DUC, CHLOE, XIAOMING, ELENI};
  std::vector<Person> waiting_;
};

}  // namespace

void playLobby(Capture& capture) { LobbyPlay(capture).play(); }

}  // namespace Samples
