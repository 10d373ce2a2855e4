#include "Tournament.h"

#include <herald/messages/RebuyEvents.h>
#include <herald/messages/TourSummaryEvents.h>
#include <herald/messages/TournamentLobbyEvents.h>
#include <herald/messages/TournamentLobbyRequests.h>
#include <herald/messages/TournamentMessages/TourBreakEnd.h>
#include <herald/messages/TournamentMessages/TourBreakInfo.h>
#include <herald/messages/TournamentMessages/TourBreakNotification.h>
#include <herald/messages/TournamentMessages/TourProgressEvents.h>
#include <herald/platform/tableau/StatusInTour.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <stdexcept>
#include <utility>

namespace Samples {

using namespace Tessel;
using Tour = TournamentSummary;

namespace {

constexpr std::int64_t HAND_MS = 20'000;
constexpr std::int64_t BREAK_MS = 180'000;
constexpr std::int64_t SMALL_BLINDS[] = {10, 15, 25, 50, 75, 100, 150, 200};
constexpr int FIRST_LEVEL_WITH_ANTE = 5;

constexpr std::int64_t TICKET_VALUE = 2500;
constexpr std::wstring_view TICKET = L"Spring main event, buy-in €25";

std::int64_t smallBlind(int level) { return SMALL_BLINDS[level - 1]; }

std::wstring_view tableName(int table) { return table % 2 ? L"Spring Table 1" : L"Spring Table 2"; }

}  // namespace

Tournament::Entrant& Tournament::entrant(const Person& person) {
  const auto found = std::ranges::find(entrants_, person.id, [](const Entrant& entrant) { return entrant.person.id; });
  if (found == entrants_.end()) throw std::logic_error("a player who has not entered");
  return *found;
}

const Tournament::Entrant* Tournament::user() const {
  const auto found = std::ranges::find(entrants_, USER.id, [](const Entrant& entrant) { return entrant.person.id; });
  return found == entrants_.end() ? nullptr : &*found;
}

std::vector<Tournament::Entrant*> Tournament::atTable(int table) {
  std::vector<Entrant*> entrants;
  for (Entrant& entrant : entrants_)
    if (entrant.table == table) entrants.push_back(&entrant);
  return entrants;
}

std::vector<int> Tournament::tables() {
  std::vector<int> tables = {FIRST_TABLE, SECOND_TABLE};
  std::erase_if(tables, [this](int table) { return atTable(table).empty(); });
  return tables;
}

std::vector<const Tournament::Entrant*> Tournament::ranking() const {
  std::vector<const Entrant*> entrants;
  for (const Entrant& entrant : entrants_)
    if (entrant.isPlaying()) entrants.push_back(&entrant);
  std::ranges::stable_sort(entrants, std::ranges::greater(), &Entrant::chips);
  return entrants;
}

void Tournament::check() const {
  std::int64_t chips = 0;
  std::int64_t bought = 0;
  std::int64_t paid = 0;
  for (const Entrant& entrant : entrants_) {
    chips += entrant.chips;
    if (level_ > 0) bought += Tour::STARTING_CHIPS;
    bought += entrant.rebuys * Tour::REBUY_CHIPS + entrant.hasAddon * Tour::ADDON_CHIPS;
    paid += Tour::BUY_IN + entrant.rebuys * Tour::REBUY_COST + entrant.hasAddon * Tour::ADDON_COST;
  }
  if (chips != bought) throw std::logic_error("chips were made or lost");
  if (paid != summary_.prizePool || prizesPaid_ > paid) throw std::logic_error("money was made or lost");
  if (std::ssize(entrants_) != summary_.entrants) throw std::logic_error("an entrant was lost");
}

void Tournament::enter(const Person& person) {
  entrants_.push_back({person});
  ++summary_.entrants;
  ++summary_.players;
  summary_.prizePool += Tour::BUY_IN;
  if (person.id == USER.id) summary_.registration = PlayerRegistrationStatus::IS_REGISTERED;
  tell<LobbyPlayerList>(Body().i16(1).i32(person.id).text(person.nick).i8(0).i16(0));
}

void Tournament::withdraw(const Person& person) {
  std::erase_if(entrants_, [&](const Entrant& entrant) { return entrant.person.id == person.id; });
  --summary_.entrants;
  --summary_.players;
  summary_.prizePool -= Tour::BUY_IN;
  if (person.id == USER.id) summary_.registration = PlayerRegistrationStatus::NOT_REGISTERED;
  tell<LobbyPlayerList>(Body().i16(0).i16(1).i32(person.id));
}

std::int64_t Tournament::averageChips() const {
  const auto chips = std::accumulate(entrants_.begin(), entrants_.end(), std::int64_t{0},
                                     [](std::int64_t sum, const Entrant& entrant) { return sum + entrant.chips; });
  return level_ > 0 ? chips / summary_.players : 0;
}

// The user's own view of the tournament.
Body Tournament::userInfo() const {
  const std::vector<const Entrant*> ranking = this->ranking();
  const Entrant* user = this->user();
  const bool isPlaying = user && user->isPlaying();
  StatusInTour status = StatusInTour::NOT_PLAYING;
  int position = -1;
  if (isPlaying) {
    status = StatusInTour::PLAYING;
    position = static_cast<int>(std::ranges::find(ranking, user) - ranking.begin()) + 1;
  } else if (user && level_ > 0) {
    status = StatusInTour::KNOCKED_OUT;
    position = user->position;
  } else if (user) {
    status = StatusInTour::WAITING_FOR_START;
  }
  Body body;
  body.money(chipsOf(ranking.empty() ? 0 : ranking[0]->chips)).money(chipsOf(averageChips()));
  body.i8(status).i32(position);
  return body.money(chipsOf(user ? user->chips : 0)).i32(user ? user->table : NO_TABLE);
}

void Tournament::tellLobby() {
  tell<SpecificTourSummary>(Body().fields(Samples::summary(summary_)).fields(userInfo()));
  std::vector<Body> players;
  for (const Entrant& entrant : entrants_)
    players.push_back(Body().i32(entrant.person.id).text(entrant.person.nick).i8(0));
  tell<LobbyPlayerList>(Body().list<std::int16_t>(players).i16(0));
  tellTables();
}

Body Tournament::ranked(const Entrant& entrant) const {
  const std::vector<const Entrant*> ranking = this->ranking();
  const auto position = std::ranges::find(ranking, &entrant) - ranking.begin() + 1;
  return Body().i32(entrant.person.id).text(entrant.person.nick).i32(position).money(chipsOf(entrant.chips)).i32(0);
}

Body Tournament::rankedList(const std::vector<const Entrant*>& entrants) const {
  return Body().list<std::int16_t>(entrants,
                                   [this](Body& body, const Entrant* entrant) { body.fields(ranked(*entrant)); });
}

void Tournament::tellProgress() {
  tell<SpecificTourSummaryUpdate>(Body().fields(summaryUpdate(summary_)).fields(userInfo()));
  if (user() && user()->isPlaying()) tell<TourUserRanking>(ranked(*user()));
}

void Tournament::tellRankings() { tell<TourPlayerRankingListInfo>(rankedList(ranking())); }

void Tournament::tellTables() {
  std::vector<Body> infos;
  std::vector<Body> rankings;
  for (const int table : tables()) {
    std::vector<const Entrant*> entrants = ranking();
    std::erase_if(entrants, [&](const Entrant* entrant) { return entrant->table != table; });
    Body& info = infos.emplace_back();
    info.i32(table).text(tableName(table)).i16(std::ssize(entrants)).i8(0);
    info.money(chipsOf(entrants.back()->chips)).money(chipsOf(entrants.front()->chips));
    rankings.push_back(Body().i32(table).fields(rankedList(entrants)));
  }
  tell<LobbyTableList>(
      Body().list<std::int16_t>(infos).list<std::int16_t, std::int32_t>(std::exchange(closedTables_, {})));
  for (const Body& ranking : rankings) tell<LobbyTablePlayerList>(ranking);
}

void Tournament::inviteUser() {
  constexpr int NODE = 22;
  const int table = user()->table;
  tell<LobbyTourInvitationMsg>(Body().i32(summary_.id).i32(table).i16(NODE).i32(Tour::PORT).i16(TOURNAMENT_CHIPS));
  capture_.client(TournamentTableReqMsg(USER.id, summary_.id, table));
}

void Tournament::start() {
  for (std::size_t i = 0; i < entrants_.size(); ++i) {
    entrants_[i].table = i % 2 == 0 ? FIRST_TABLE : SECOND_TABLE;
    entrants_[i].chips = Tour::STARTING_CHIPS;
  }
  level_ = 1;
  summary_.status = AllowedTournamentStatus::RUNNING;
  summary_.startTime = capture_.now();
  levelEnd_ = summary_.startTime + Tour::LEVEL_MS;
  breakStart_ = summary_.startTime + Tour::REBUY_LEVELS * Tour::LEVEL_MS;
  inviteUser();
  notify(AllowedTournamentNotification::STARTED);
  tellTables();
  tellLevel();
}

Body Tournament::level(int number) {
  const std::int64_t small = smallBlind(number);
  const std::int64_t ante = number < FIRST_LEVEL_WITH_ANTE ? 0 : small / 5;
  return Body()
      .i16(number)
      .i64(Tour::LEVEL_MS)
      .i16(-1)
      .money(chipsOf(small))
      .money(chipsOf(2 * small))
      .money(chipsOf(ante));
}

void Tournament::tellLevel() {
  const std::int64_t untilBreak = level_ > Tour::REBUY_LEVELS ? -1 : breakStart_ - capture_.now();
  tell<TourLevelInfoMsg>(level(level_));
  tell<TourNextLevelInfoMsg>(Body().fields(level(level_)).fields(level(level_ + 1)));
  tell<TourBreakNotification>(Body().i64(untilBreak).i64(untilBreak < 0 ? -1 : BREAK_MS));
}

void Tournament::nextLevel() {
  waitForLevelEnd();
  ++level_;
  levelEnd_ += Tour::LEVEL_MS;
  tellLevel();
}

void Tournament::waitForLevelEnd() {
  const std::int64_t wait = levelEnd_ - capture_.now();
  if (wait < 0) throw std::logic_error("the level has ended before");
  capture_.pause(wait);
}

void Tournament::win(Entrant& winner, Entrant& loser, std::int64_t amount) {
  amount = std::min(amount, winner.chips);
  if (amount <= 0 || amount > loser.chips) throw std::logic_error("chips that are not there");
  loser.chips -= amount;
  winner.chips += amount;
}

void Tournament::playHands(int count) {
  for (int hand = 0; hand < count; ++hand) {
    capture_.pause(HAND_MS);
    for (const int table : tables()) {
      const std::vector<Entrant*> entrants = atTable(table);
      const int players = static_cast<int>(entrants.size());
      const int loser = dice_.roll(players);
      const int winner = (loser + 1 + dice_.roll(players - 1)) % players;
      Entrant& losing = *entrants[static_cast<std::size_t>(loser)];
      const std::int64_t pot = 2 * smallBlind(level_) * (1 + dice_.roll(8));
      if (losing.chips > 1) win(*entrants[static_cast<std::size_t>(winner)], losing, std::min(pot, losing.chips / 2));
    }
  }
  tellProgress();
}

void Tournament::loseAll(const Person& person) {
  Entrant& loser = entrant(person);
  while (loser.chips > 0) {
    capture_.pause(HAND_MS);
    std::vector<Entrant*> others = atTable(loser.table);
    std::erase(others, &loser);
    win(*std::ranges::max(others, {}, &Entrant::chips), loser, loser.chips);
  }
}

void Tournament::takeBreak() {
  synchronise(AllowedTournamentSynchedEvent::WAITING_FOR_HANDS_TO_END);
  waitForLevelEnd();
  synchronise(AllowedTournamentSynchedEvent::WAITING_FOR_BREAK);
  summary_.status = AllowedTournamentStatus::ON_BREAK;
  tell<TourBreakInfo>(Body().i64(BREAK_MS).i32(summary_.entrants).i32(summary_.players).i64(averageChips()));
}

void Tournament::endBreak() {
  const std::int64_t wait = breakStart_ + BREAK_MS - capture_.now();
  if (wait < 0) throw std::logic_error("the break has ended before");
  capture_.pause(wait);
  summary_.status = AllowedTournamentStatus::RUNNING;
  tell<TourBreakEnd>();
  levelEnd_ = capture_.now();
}

void Tournament::notify(AllowedTournamentNotification event) { tell<TourNotification>(Body().i8(event)); }

void Tournament::notifyTable(AllowedTableNotificationEvent event) { tell<TableNotification>(Body().i8(event)); }

void Tournament::synchronise(AllowedTournamentSynchedEvent event) { tell<TourSynchInfo>(Body().i8(event)); }

void Tournament::tellRebuyPeriod(bool isAddon) {
  const std::int64_t end = breakStart_ + (isAddon ? BREAK_MS : 0);
  const std::int64_t left = std::max(end - capture_.now(), std::int64_t{-1});
  const int rebuysLeft = isAddon ? !user()->hasAddon : Tour::REBUYS_EACH - user()->rebuys;
  tell<TournamentRebuyNotificationMsg>(Body().i64(left).flag(isAddon).i32(rebuysLeft));
}

void Tournament::offer(bool isAddon) {
  const Money chips = chipsOf(isAddon ? Tour::ADDON_CHIPS : Tour::REBUY_CHIPS);
  const Money cost = euros(isAddon ? Tour::ADDON_COST : Tour::REBUY_COST);
  tell<TournamentRebuyQueryMsg>(Body().i32(summary_.id).money(chips).money(cost).flag(isAddon));
}

void Tournament::failRebuy(AllowedTournamentRebuyFailed reason) { tell<TourRebuyFailedMsg>(Body().i8(reason)); }

void Tournament::tellPending(const std::vector<Person>& persons) {
  tell<TournamentPendingRebuysMsg>(
      Body().list<std::int16_t>(persons, [](Body& body, const Person& person) { body.i32(person.id); }));
}

void Tournament::buy(const Person& person, bool isAddon) {
  Entrant& buyer = entrant(person);
  if (isAddon ? buyer.hasAddon : buyer.rebuys == Tour::REBUYS_EACH) throw std::logic_error("nothing left to buy");
  const std::int64_t chips = isAddon ? Tour::ADDON_CHIPS : Tour::REBUY_CHIPS;
  const std::int64_t cost = isAddon ? Tour::ADDON_COST : Tour::REBUY_COST;
  if (isAddon)
    buyer.hasAddon = true;
  else
    ++buyer.rebuys;
  buyer.chips += chips;
  summary_.prizePool += cost;
  tell<TourPlayerRebuyNotificationMsg>(
      Body().i32(person.id).text(person.nick).money(chipsOf(chips)).money(euros(cost)).flag(isAddon));
}

void Tournament::decline(const Person& person, bool isAddon) {
  tell<TournamentPlayerNoRebuyNotification>(Body().i32(person.id).i8(isAddon ? 1 : 0));
}

// The last three win; the winner's share begins with a ticket.
void Tournament::tellKnockout(const Entrant& entrant) {
  const std::int64_t third = summary_.prizePool * 20 / 100;
  const std::int64_t second = summary_.prizePool * 30 / 100;
  const std::int64_t prizes[] = {summary_.prizePool - second - third - TICKET_VALUE, second, third};
  Body body;
  body.i32(entrant.person.id).text(entrant.person.nick).i32(entrant.position);
  if (entrant.position <= Tour::PAID_PLACES) {
    const std::int64_t prize = prizes[entrant.position - 1];
    prizesPaid_ += prize;
    body.i16(1).money(euros(prize));
  } else {
    body.i16(0);
  }
  if (entrant.position == 1) {
    prizesPaid_ += TICKET_VALUE;
    body.i16(1).text(TICKET);
  } else {
    body.i16(0);
  }
  tell<TourKnockoutInfo>(body);
}

void Tournament::knockOut(const Person& person) {
  Entrant& out = entrant(person);
  if (out.chips != 0) throw std::logic_error("a player with chips was knocked out");
  out.position = summary_.players--;
  out.table = NO_TABLE;
  tellKnockout(out);
  balanceTables();
}

void Tournament::moveTo(int table, Entrant& moved) {
  const int from = moved.table;
  const int userTable = user()->table;
  if (from == userTable) tell<TourPlayerLeave>(Body().i32(moved.person.id).text(tableName(table)));
  moved.table = table;
  if (table == userTable) tell<TourPlayerArrive>(Body().text(moved.person.nick).text(tableName(from)));
  if (&moved == user()) inviteUser();
}

void Tournament::balanceTables() {
  std::vector<Entrant*> fuller = atTable(FIRST_TABLE);
  std::vector<Entrant*> emptier = atTable(SECOND_TABLE);
  if (fuller.size() < emptier.size()) std::swap(fuller, emptier);
  if (emptier.empty()) return;
  const int keptTable = fuller.front()->table;
  const int otherTable = emptier.front()->table;
  if (fuller.size() + emptier.size() > PLAYERS_PER_TABLE) {
    if (fuller.size() > emptier.size() + 1) moveTo(otherTable, *fuller.back());
    return;
  }
  const bool isUserTable = user()->table == otherTable;
  if (isUserTable) notifyTable(AllowedTableNotificationEvent::BREAKING_UP);
  for (Entrant* entrant : emptier) moveTo(keptTable, *entrant);
  closedTables_.push_back(otherTable);
  notify(AllowedTournamentNotification::FINAL_TABLE);
  notifyTable(AllowedTableNotificationEvent::FINAL_TABLE);
  tellTables();
}

void Tournament::finish() {
  const std::vector<const Entrant*> last = ranking();
  if (last.size() != 1) throw std::logic_error("the tournament is not over");
  Entrant& winner = entrant(last.front()->person);
  winner.position = 1;
  tellKnockout(winner);
  if (prizesPaid_ != summary_.prizePool) throw std::logic_error("the prizes are not the prize pool");
  summary_.status = AllowedTournamentStatus::COMPLETED;
  notify(AllowedTournamentNotification::ENDED);
  tellProgress();
}

}  // namespace Samples
