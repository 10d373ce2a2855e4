#include <herald/messages/RebuyRequests.h>
#include <herald/messages/TourSummaryEvents.h>
#include <herald/messages/TournamentCreationEvents.h>
#include <herald/messages/TournamentCreationRequests.h>
#include <herald/messages/TournamentLobbyEvents.h>
#include <herald/messages/TournamentLobbyRequests.h>
#include <herald/messages/TournamentMessages/TourProgressEvents.h>
#include <herald/platform/tableau/BlindLevelSpeed.h>
#include <herald/platform/tableau/CreatePrivateTournamentError.h>
#include <herald/platform/tableau/PrizeStructureType.h>
#include <herald/platform/tableau/RebuyStructure.h>

#include <vector>

#include "Capture.h"
#include "Plays.h"
#include "engine/Tournament.h"

namespace Samples {

using namespace CardRoom;
using namespace Tessel;
using Tour = TournamentSummary;
using Event = AllowedTournamentNotification;

namespace {

enum Node { SCHEDULED = 21, SIT_AND_GO = 22 };
enum ReplyStatus { ACCEPTED = 0, WRONG_PASSWORD = 3 };
constexpr std::wstring_view PASSWORD = L"crocus";

// A change list of the scheduled tournaments has another id than one of the sit-and-gos.
constexpr int SIT_AND_GO_CHANGES = -72;
constexpr int SCHEDULED_CHANGES = -73;

const Tour SPRING = {.id = 9001,
                     .attributes = Tour::SIT_AND_GO | Tour::PASSWORD | Tour::REBUYS | Tour::NO_WEB_SIGNUP,
                     .name = L"Spring Sit & Go 1",
                     .description = L"Rebuys and add-on, a ticket for the winner",
                     .tableName = L"Spring Table",
                     .status = AllowedTournamentStatus::REGISTRATION_OPEN,
                     .ticketValue = 2500};
const Tour FLIGHT = {.id = 9002,
                     .attributes = Tour::FLIGHT,
                     .name = L"Spring main event, flight B",
                     .description = L"Survivors meet on Sunday",
                     .maxEntrants = 200,
                     .playersInMainEvent = 31};

Body joinRequest(int tournamentId, int tableId, ReplyStatus status, std::wstring_view password = {}) {
  return Body().i32(USER.id).i32(tournamentId).i32(tableId).i8(status).text(password);
}

class TournamentPlay {
 public:
  explicit TournamentPlay(Capture& capture) : capture_(capture), spring_(capture, SPRING) {}

  void play() {
    announce();
    lookAround();
    registerPlayers();
    playRebuyLevels();
    buyAddons();
    playToFinalTable();
    playForMoney();
    endFlight();
    askForRules();
    cancelPrivateTournament();
    startPrivateTournament();
  }

 private:
  void tellChanges(Node node, const std::vector<Body>& added, const std::vector<Body>& updated,
                   const std::vector<int>& deleted = {}) {
    Body body;
    body.i16(node).list<std::int16_t>(added).list<std::int16_t>(updated).list<std::int16_t, std::int32_t>(deleted);
    capture_.server(node == SIT_AND_GO ? SIT_AND_GO_CHANGES : SCHEDULED_CHANGES, body);
  }

  void tellSpringChange() { tellChanges(SIT_AND_GO, {}, {summaryUpdate(spring_.summaryFor(USER.id))}); }

  void announce() {
    tellChanges(SIT_AND_GO, {summary(SPRING)}, {});
    flight_.startTime = capture_.now() + 600'000;
    flight_.registrationTime = capture_.now();
    tellChanges(SCHEDULED, {summary(flight_)}, {});
  }

  void lookAround() {
    capture_.client(TournamentLobbyReq(USER.id, SPRING.id));
    capture_.server<TournamentLobbyReply>(joinRequest(SPRING.id, 0, ACCEPTED));
    spring_.tellLobby();
    capture_.client(TournamentDataReqWinClient(SPRING.id, USER.id));
    tellData();
  }

  void tellData() {
    constexpr int TYPE_SIT_AND_GO = 0;
    constexpr std::int64_t BIG_BLINDS[] = {20, 30, 50, 100, 150, 200};
    const Tour tour = spring_.summaryFor(USER.id);
    Body body;
    body.i32(tour.id).money(euros(Tour::BUY_IN)).money(euros(Tour::FEE)).i32(tour.entrants);
    body.money(euros(tour.prizePool)).i32(1).i32(Tour::PAID_PLACES).money(chipsOf(Tour::STARTING_CHIPS));
    body.i8(TYPE_SIT_AND_GO).i8(AllowedGameType::TEXAS_HOLDEM).i8(AllowedLimitType::NO_LIMIT);
    body.text(tour.name).text(tour.description).i8(tour.registration);
    body.list<std::int32_t, std::int64_t>(BIG_BLINDS);
    capture_.server<TournamentDataWinClientMsg>(body);
  }

  void askToJoin(std::wstring_view password) {
    const bool isRight = password == PASSWORD;
    capture_.client(TournamentJoinRequestMsg(USER.id, SPRING.id, password));
    capture_.server<TournamentJoinReplyMsg>(joinRequest(SPRING.id, -1, isRight ? ACCEPTED : WRONG_PASSWORD, password));
    if (isRight) spring_.enter(USER);
  }

  void registerPlayers() {
    for (const Person& person : {AASE, DUC, CHLOE}) spring_.enter(person);
    askToJoin(L"snowdrop");
    askToJoin(PASSWORD);
    capture_.server<EnteredTourListMsg>(Body().i16(1).i32(SPRING.id).i16(SIT_AND_GO).text(SPRING.name));
    capture_.client(TournamentUnjoinRequestMsg(USER.id, SPRING.id));
    capture_.server<TournamentUnjoinReplyMsg>(joinRequest(SPRING.id, 0, ACCEPTED));
    spring_.withdraw(USER);
    capture_.server<EnteredTourListMsg>(Body().i16(0));
    askToJoin(PASSWORD);
    tellSpringChange();
    for (const Person& person : {KWAME, XIAOMING, JOKER, ALISA, OMAR, ELENI}) {
      capture_.pause(20'000);
      spring_.enter(person);
    }
    tellSpringChange();
    spring_.start();
    tellSpringChange();
  }

  void answerOffer(bool isAddon, bool accept) {
    spring_.offer(isAddon);
    capture_.pause(3000);
    capture_.client(TournamentRebuyReplyMsg(SPRING.id, accept));
  }

  void playRebuyLevels() {
    spring_.tellRebuyPeriod(false);
    spring_.playHands(4);
    spring_.loseAll(KWAME);
    spring_.tellPending({KWAME});
    spring_.buy(KWAME, false);
    spring_.loseAll(DUC);
    spring_.tellPending({DUC});
    spring_.decline(DUC, false);
    spring_.tellPending({});
    spring_.knockOut(DUC);

    spring_.nextLevel();
    spring_.tellRankings();
    spring_.playHands(3);
    spring_.loseAll(USER);
    spring_.loseAll(JOKER);
    spring_.tellPending({USER, JOKER});
    answerOffer(false, true);
    spring_.buy(USER, false);
    spring_.tellRebuyPeriod(false);
    spring_.buy(JOKER, false);
    // Who has no more than the starting chips may buy again at once; at first the user does not want to.
    answerOffer(false, false);
    spring_.decline(USER, false);
    spring_.playHands(2);

    spring_.nextLevel();
    spring_.tellRankings();
    answerOffer(false, true);
    spring_.failRebuy(AllowedTournamentRebuyFailed::NOT_ENOUGH_MONEY);
    spring_.playHands(4);
    spring_.loseAll(OMAR);
    spring_.synchronise(AllowedTournamentSynchedEvent::WAITING_FOR_REBUYS);
    spring_.tellPending({OMAR});
    spring_.buy(OMAR, false);
    tellSpringChange();
  }

  void buyAddons() {
    spring_.takeBreak();
    tellSpringChange();
    spring_.tellRebuyPeriod(false);
    spring_.tellRebuyPeriod(true);
    spring_.synchronise(AllowedTournamentSynchedEvent::WAITING_FOR_ADDONS);
    std::vector<Person> pending = {AASE, CHLOE, USER, KWAME, XIAOMING, JOKER, ALISA, OMAR, ELENI};
    spring_.tellPending(pending);
    while (!pending.empty()) {
      const Person person = pending.front();
      pending.erase(pending.begin());
      const bool accepts = person.id != CHLOE.id && person.id != JOKER.id;
      if (person.id == USER.id) answerOffer(true, accepts);
      if (accepts)
        spring_.buy(person, true);
      else
        spring_.decline(person, true);
      spring_.tellPending(pending);
    }
    spring_.tellRebuyPeriod(true);
    spring_.synchronise(AllowedTournamentSynchedEvent::ALL_TABLES_READY);
    spring_.endBreak();
  }

  void knockOut(const Person& person) {
    spring_.loseAll(person);
    spring_.knockOut(person);
    spring_.tellProgress();
  }

  void playToFinalTable() {
    spring_.nextLevel();
    tellSpringChange();
    spring_.playHands(2);
    knockOut(ELENI);
    spring_.tellTables();
    knockOut(KWAME);
    spring_.nextLevel();
    spring_.tellRankings();
    knockOut(JOKER);
    spring_.tellTables();
    spring_.playHands(2);
    knockOut(XIAOMING);
    tellSpringChange();
  }

  void playForMoney() {
    spring_.nextLevel();
    knockOut(OMAR);
    spring_.notify(Event::HAND_FOR_HAND_STARTED);
    spring_.notifyTable(AllowedTableNotificationEvent::HAND_FOR_HAND);
    spring_.playHands(2);
    knockOut(CHLOE);
    spring_.notify(Event::HAND_FOR_HAND_ENDED);
    spring_.notify(Event::IN_THE_MONEY);
    spring_.tellRankings();
    spring_.nextLevel();
    knockOut(USER);
    spring_.tellTables();
    spring_.playHands(3);
    knockOut(ALISA);
    spring_.finish();
    tellSpringChange();
    tellChanges(SIT_AND_GO, {}, {}, {SPRING.id});
  }

  // The other tournament, which the user has only watched.
  void endFlight() {
    constexpr std::int64_t LAST_MINUTES = 300'000;
    flight_.status = AllowedTournamentStatus::RUNNING;
    flight_.playersInMainEvent = 44;
    tellChanges(SCHEDULED, {}, {summaryUpdate(flight_)});
    capture_.server<TourFlightEndNotification>(Body().i64(LAST_MINUTES));
    capture_.pause(LAST_MINUTES);
    flight_.status = AllowedTournamentStatus::COMPLETED;
    flight_.playersInMainEvent = 57;
    tellChanges(SCHEDULED, {}, {summaryUpdate(flight_)}, {FLIGHT.id});
  }

  void askForRules() {
    constexpr int TRY_LATER = 1;
    capture_.client(TournamentCreationRulesReq());
    capture_.server<TourCreationRulesFail>(Body().i8(TRY_LATER));
    capture_.pause(5000);
    capture_.client(TournamentCreationRulesReq());
    capture_.server<TournamentCreationRulesReply>(rules());
  }

  Body rules() const {
    constexpr int BOTH_TYPES = 3;
    constexpr int LIMIT_AND_NO_LIMIT = 5;
    constexpr int POT_LIMIT_ONLY = 2;
    constexpr std::int64_t DAY = 86'400'000;
    Body body;
    body.i8(BOTH_TYPES);
    body.i16(2);
    body.i8(AllowedGameType::TEXAS_HOLDEM).i8(LIMIT_AND_NO_LIMIT).i16(3).i8(2).i8(6).i8(9);
    body.i8(AllowedGameType::OMAHA).i8(POT_LIMIT_ONLY).i16(2).i8(6).i8(9);
    body.i16(2).i8(AllowedRebuyStructure::FREEZEOUT).i8(AllowedRebuyStructure::REBUYS_AND_ADDON);
    body.i16(2);
    body.i16(EURO).i16(2).i8(1).i64(500).i64(50).i8(2).i64(1000).i64(100);
    body.i16(DOLLAR).i16(1).i8(1).i64(500).i64(50);
    body.i16(2);
    body.i16(1).i8(AllowedBlindLevelSpeed::NORMAL).money(chipsOf(3000));
    body.i16(2).i8(AllowedBlindLevelSpeed::TURBO).money(chipsOf(1500));
    body.i16(2).i8(AllowedPrizeStructureType::STANDARD).i8(AllowedPrizeStructureType::WINNER_TAKES_ALL);
    body.i64(capture_.now()).i64(capture_.now() + 7 * DAY);
    body.i16(1).i64(capture_.now() + DAY / 24).i64(capture_.now() + 7 * DAY);
    body.i16(2).i32(100).i16(15).i32(60);
    return body.i16(3).text(L"en").text(L"nb").text(L"pt-BR");
  }

  void askToCreate(const Tour& tournament, AllowedCreatePrivateTournamentError result) {
    constexpr int SEATS = 6;
    constexpr int BUY_IN_ID = 2;
    constexpr int SPEED_ID = 2;
    const int freezeout = static_cast<int>(AllowedRebuyStructure::FREEZEOUT);
    const int standard = static_cast<int>(AllowedPrizeStructureType::STANDARD);
    const int minutesToRegister = 15;
    capture_.client(CreateTournamentReq(
        CreateTourRequestType(Tourney::TournamentType::SIT_AND_GO, AllowedGameType::TEXAS_HOLDEM,
                              AllowedLimitType::NO_LIMIT, SEATS, EURO, BUY_IN_ID, SPEED_ID, freezeout, standard,
                              capture_.now(), minutesToRegister, tournament.maxEntrants, tournament.name, L"en")));
    capture_.server<CreateTourReplyMsg>(Body().i8(result));
    if (result == AllowedCreatePrivateTournamentError::NONE) tellChanges(SIT_AND_GO, {summary(tournament)}, {});
  }

  static Tour privateTournament(int id, const std::wstring& name) {
    return {.id = id,
            .attributes = Tour::SIT_AND_GO | Tour::PASSWORD | Tour::NO_WEB_SIGNUP,
            .name = name,
            .description = L"Marigold's guests",
            .status = AllowedTournamentStatus::REGISTRATION_OPEN,
            .maxEntrants = 6,
            .owner = USER.id};
  }

  void cancelPrivateTournament() {
    constexpr int TOO_FEW_PLAYERS = 1;
    constexpr int CANCELLED = 0;
    askToCreate(privateTournament(9003, L"Spring Sit & Go 1"), AllowedCreatePrivateTournamentError::NAME_IN_USE);
    Tour tournament = privateTournament(9003, L"Café royal");
    askToCreate(tournament, AllowedCreatePrivateTournamentError::NONE);
    capture_.client(StartTournamentReq(tournament.id));
    capture_.server<StartTournamentReplyMsg>(Body().i8(TOO_FEW_PLAYERS));
    capture_.client(CancelTournamentReq(tournament.id));
    capture_.server<CancelTourReplyMsg>(Body().i8(CANCELLED));
    tournament.status = AllowedTournamentStatus::CANCELLED;
    tellChanges(SIT_AND_GO, {}, {summaryUpdate(tournament)}, {tournament.id});
  }

  void startPrivateTournament() {
    constexpr int STARTED = 0;
    Tour tournament = privateTournament(9004, L"Café royal, second try");
    askToCreate(tournament, AllowedCreatePrivateTournamentError::NONE);
    capture_.pause(90'000);
    tournament.entrants = tournament.players = 4;
    tournament.prizePool = tournament.entrants * Tour::BUY_IN;
    tellChanges(SIT_AND_GO, {}, {summaryUpdate(tournament)});
    capture_.client(StartTournamentReq(tournament.id));
    capture_.server<StartTournamentReplyMsg>(Body().i8(STARTED));
    tournament.status = AllowedTournamentStatus::RUNNING;
    tournament.startTime = capture_.now();
    tellChanges(SIT_AND_GO, {}, {summaryUpdate(tournament)});
  }

  Capture& capture_;
  Tournament spring_;
  Tour flight_ = FLIGHT;
};

}  // namespace

void playTournament(Capture& capture) { TournamentPlay(capture).play(); }

}  // namespace Samples
