#include <herald/messages/AccountEvents.h>
#include <herald/messages/BettingEvents.h>
#include <herald/messages/CardEvents.h>
#include <herald/messages/LobbyRequests.h>
#include <herald/messages/SeatEvents.h>
#include <herald/messages/TableRequests.h>
#include <herald/messages/TableStateEvents.h>

#include "Capture.h"
#include "Plays.h"
#include "engine/Table.h"

namespace Samples {

using namespace CardRoom;
using namespace Tessel;
using enum AllowedDealType;

namespace {

const Game GAME = {.id = 7301,
                   .name = L"Nordlys",
                   .bigBlind = 100,
                   .ante = 10,
                   .maxPlayers = 6,
                   .flags = Game::BOOTABLE | Game::NETWORK};

constexpr std::uint32_t SEED = 20240308;
constexpr int LAST_HAND = 118'200;

enum SitDownStatus { SAT_DOWN = 0, SEAT_TAKEN = 1, TOO_LITTLE_MONEY = 7 };
enum SitOutStatus { NOT_ENOUGH_FUNDS = 0, WILL_BE_SAT_OUT = 1 };
enum VoteStatus { VOTE_CAST = 0, VOTE_CANCELLED = 1 };

std::list<Player> players() {
  return {{.person = JOKER, .account = 11'000, .seat = 0, .stack = 8'420},
          {.person = DUC, .account = 15'000, .seat = 1, .stack = 9'800, .sittingIn = true},
          {.person = AASE, .account = 2'500, .seat = 2, .stack = 24'350, .sittingIn = true},
          {.person = CHLOE, .account = 90'000, .seat = 3, .stack = 41'225, .sittingIn = true},
          {.person = KWAME, .account = 0, .seat = 4, .stack = 3'150, .sittingIn = true},
          {.person = XIAOMING, .account = 30'000},
          {.person = USER, .account = 60'000}};
}

class TablePlay {
 public:
  explicit TablePlay(Capture& capture) : capture_(capture), table_(capture, GAME, players(), SEED) {
    table_.setHandNumber(LAST_HAND);
  }

  void play() {
    arrive();
    winWithoutShowdown();
    winSidePot();
    reload();
    splitPot();
    sitOutForThreeHands();
    comeBack();
    drawHand();
    walk();
    leave();
  }

 private:
  void arrive() {
    capture_.client(JoinGameRequest(GAME.id, USER.id));
    table_.tellGameState();
    capture_.client(TableInfoReq());
    table_.tellTableInfo();
    table_.tell<AllInProtectionStatusMsg>(Body().i8(1));
    leaveTable(JOKER);

    capture_.client(SitDownRequest(1));
    table_.tell<SitDownReply>(Body().i8(SEAT_TAKEN));
    capture_.client(SitDownRequest(0));
    table_.tell<SitDownReply>(Body().i8(SAT_DOWN));
    table_.sitDown(USER, 0);
    capture_.client(ShowCashierReq());
    table_.tell<ShowCashierOk>(cashier(GAME, table_.player(USER).account));
    for (const std::int64_t amount : {70'000, 20'000}) {
      capture_.client(ReserveMoney(amount));
      table_.takeMoney(USER, amount);
    }

    capture_.client(ServerSitIn());
    table_.tell<ClientWaitingToSitIn>(Body().i32(USER.id));
    capture_.client(WaitForBigBlind());
    table_.tell<ClientSitInWaitingBigBlind>();
    capture_.client(DoNotWaitForBigBlind());
    capture_.client(ManualPostBlind());
    table_.sitIn(USER, false);
  }

  void startHand(std::string_view firstCards = {}) {
    table_.startHand(firstCards);
    table_.postAntes();
    table_.postBlinds();
  }

  void winWithoutShowdown() {
    startHand();
    table_.dealHands(2);
    table_.betting({FOLD, raiseTo(300), slowly(CALL), CALL, FOLD});
    table_.dealBoard(FLOP);
    table_.betting({CHECK, raiseTo(500), hurried(FOLD), CALL});
    table_.dealBoard(TURN);
    table_.betting({raiseTo(1000), hurried(raiseTo(3000)), FOLD});
    table_.winUncalled(false);
  }

  // The shortest stack wins the main pot with a straight; the user's three jacks win the side pot.
  void winSidePot() {
    startHand("9c As Jd 8h Qh 4d Kd Jc 8s 3c Jh 8d 2s Qs Th");
    table_.dealHands(2);
    table_.betting({raiseTo(300), raiseTo(900), FOLD, FOLD, ALL_IN, CALL, CALL});
    table_.dealBoard(FLOP);
    table_.betting({CHECK, raiseTo(2000), ALL_IN, ALL_IN});
    table_.showAllIn();
    table_.tellChances();
    table_.dealBoard(TURN);
    table_.dealBoard(RIVER);
    table_.showdown();
    table_.sitOut(DUC, NOT_ENOUGH_FUNDS);
  }

  void reload() {
    table_.takeMoney(DUC, 10'000);
    table_.sitIn(DUC, true);
    table_.tell<PlayerJoined>(playerInGame(XIAOMING, {0, GAME.unit}, GAME.id));
    table_.sitDown(XIAOMING, 5);
    table_.takeMoney(XIAOMING, 15'000);
    table_.tell<ClientWaitingToSitIn>(Body().i32(XIAOMING.id));
    table_.sitIn(XIAOMING, false);
  }

  // Both have two pair, queens and sevens, with an ace.
  void splitPot() {
    startHand("4h Ad Ah 5d 9c Tc 2h Qh Qs 6c 3s 8d Qd 7c 7s 2d 9h");
    table_.dealHands(2);
    table_.betting({raiseTo(300), FOLD, FOLD, FOLD, FOLD, CALL});
    capture_.client(ReserveMoney(5000));
    table_.tell<ReserveMoneyReplyPending>();
    table_.dealBoard(FLOP);
    table_.betting({CHECK, raiseTo(400), slowly(CALL)});
    table_.dealBoard(TURN);
    table_.betting({CHECK, prepared(CHECK)});
    table_.dealBoard(RIVER);
    capture_.client(ServerSitOut(USER.id, table_.player(USER).seat));
    table_.tell<ClientWaitingToSitOut>();
    table_.betting({raiseTo(1015), prepared(CALL)});
    table_.showdown();
    table_.takeMoney(USER, 5000);
    table_.sitOut(USER, WILL_BE_SAT_OUT);
  }

  void sitOutForThreeHands() {
    startHand();
    table_.dealHands(2);
    table_.betting({raiseTo(250), TIMED_OUT, CALL, FOLD, slowly(CALL)});
    table_.tell<PlayerSlowConnection>();
    table_.dealBoard(FLOP);
    table_.betting({CHECK, raiseTo(600), FOLD, CALL});
    table_.dealBoard(TURN);
    table_.betting({CHECK, CHECK});
    table_.dealBoard(RIVER);
    table_.betting({raiseTo(1500), CALL});
    table_.showdown();
    voteAgainst(CHLOE);

    startHand();
    table_.dealHands(2);
    table_.betting({FOLD, FOLD, raiseTo(250), FOLD, FOLD});
    table_.winUncalled(true);

    startHand();
    table_.dealHands(2);
    table_.betting({raiseTo(300), FOLD, FOLD, FOLD, CALL});
    table_.dealBoard(FLOP);
    table_.betting({CHECK, raiseTo(400), FOLD});
    table_.winUncalled(false);
  }

  // The user and another player want someone out who keeps the table waiting; the user thinks better of it.
  void voteAgainst(const Person& person) {
    const int seat = table_.player(person).seat;
    const auto tellVotes = [&](VoteStatus status, int votes) {
      table_.tell<ClientVoteCast>(Body().i32(person.id).i8(status).i32(votes));
    };
    capture_.client(PlayerCastVote(person.id, seat));
    tellVotes(VOTE_CAST, 1);
    tellVotes(VOTE_CAST, 2);
    capture_.client(PlayerCancelVote(person.id, seat));
    tellVotes(VOTE_CANCELLED, 1);
  }

  void comeBack() {
    capture_.client(ServerImBack());
    table_.tell<ClientWaitingToSitIn>(Body().i32(USER.id));
    table_.sitIn(USER, true);
    startHand();
    table_.postMissedBlinds(USER);
    table_.dealHands(2);
    table_.betting({FOLD, CHECK, CALL, FOLD, FOLD, CHECK});
    table_.dealBoard(FLOP);
    table_.betting({CHECK, raiseTo(300), raiseTo(900), FOLD, FOLD});
    table_.winUncalled(false);
  }

  void drawHand() {
    table_.changeGame(AllowedGameType::FIVE_CARD_DRAW, AllowedLimitType::LIMIT);
    capture_.client(TableInfoReq());
    table_.tellTableInfo();
    startHand();
    table_.dealHands(5);
    table_.betting({raiseTo(200), CALL, raiseTo(300), FOLD, FOLD, CALL, raiseTo(400), FOLD, CALL, CALL});
    table_.exchangeCards({{Exchange::AUTOMATIC, {0, 2, 4}}, {Exchange::BY_PLAYER, {1, 3}}, {Exchange::NONE}});
    table_.betting({CHECK, raiseTo(200), raiseTo(400), FOLD, prepared(CALL)});
    table_.showdown();
  }

  // All fold to the user's big blind, which is posted without asking.
  void walk() {
    table_.changeGame(AllowedGameType::TEXAS_HOLDEM, AllowedLimitType::NO_LIMIT);
    capture_.client(AutoPostBlind());
    table_.player(USER).autoPost = true;
    startHand();
    table_.dealHands(2);
    table_.betting({FOLD, FOLD, FOLD, FOLD, FOLD});
    table_.winUncalled(true);
  }

  void leaveTable(const Person& person) {
    table_.standUp(person);
    table_.tell<PlayerLeft>(Body().text(person.nick).i32(GAME.id));
    table_.tell<PlayerIGLeft>(Body().i32(person.id));
  }

  void leave() {
    leaveTable(DUC);
    const Game other = {.id = 7302, .name = L"Südwind", .maxPlayers = 9, .players = 4};
    table_.tell<ClientOpenTableReq>(infoVector(InfoVector::PokerGameInfoTypeString, {pokerGame(other)}));

    // Who has left with a win cannot come back with less.
    const Money won = table_.moneyOf(table_.player(USER));
    capture_.client(PlayerStandUpReq());
    table_.standUp(USER);
    capture_.client(SitDownRequest(0));
    table_.tell<SitDownReply>(Body().i8(TOO_LITTLE_MONEY).money(won));
    capture_.client(PlayerLeaveGame());
    table_.tell<PlayerIGLeft>(Body().i32(USER.id));
  }

  Capture& capture_;
  Table table_;
};

}  // namespace

void playTable(Capture& capture) { TablePlay(capture).play(); }

}  // namespace Samples
