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

namespace CardRoom {

using namespace Tessel;
using Tour = TournamentSummary;

namespace {

constexpr std::int64_t HAND_MS = 20'000;
constexpr std::int64_t BREAK_MS = 180'000;
constexpr std::int64_t SMALL_BLINDS[] = {10, 15, 25, 50, 75, 100, 150, 200};
constexpr int FIRST_LEVEL_WITH_ANTE = 5;

constexpr std::wstring_view TICKET = L"Spring main event, buy-in €25";

constexpr int LEVELS = static_cast<int>(std::size(SMALL_BLINDS));

// The last level goes on for ever.
std::int64_t smallBlind(int level) { return SMALL_BLINDS[std::min(level, LEVELS) - 1]; }
std::int64_t anteOf(int level) { return level < FIRST_LEVEL_WITH_ANTE ? 0 : smallBlind(level) / 5; }

}  // namespace

Tournament::Entrant& Tournament::entrant(const Person& person) {
  const auto found = std::ranges::find(entrants_, person.id, [](const Entrant& entrant) { return entrant.person.id; });
  if (found == entrants_.end()) throw std::logic_error("a player who has not entered");
  return *found;
}

const Tournament::Entrant* Tournament::find(int player) const {
  const auto found = std::ranges::find(entrants_, player, [](const Entrant& entrant) { return entrant.person.id; });
  return found == entrants_.end() ? nullptr : &*found;
}

bool Tournament::hasEntered(int player) const { return find(player) != nullptr; }

int Tournament::tableOf(int player) const {
  const Entrant* found = find(player);
  return found == nullptr ? NO_TABLE : found->table;
}

std::wstring Tournament::tableName(int table) const {
  return summary_.tableName + (table == firstTable() ? L" 1" : L" 2");
}

std::vector<int> Tournament::listenersAt(int table) const {
  std::vector<int> listeners = audience().listeners();
  std::erase_if(listeners, [&](int listener) { return tableOf(listener) != table; });
  return listeners;
}

std::vector<std::pair<Person, std::int64_t>> Tournament::stacks() const {
  std::vector<std::pair<Person, std::int64_t>> stacks;
  for (const Entrant& entrant : entrants_)
    if (entrant.isPlaying()) stacks.emplace_back(entrant.person, entrant.chips);
  return stacks;
}

TournamentSummary Tournament::summaryFor(int listener) const {
  TournamentSummary summary = summary_;
  if (hasEntered(listener)) summary.registration = PlayerRegistrationStatus::IS_REGISTERED;
  return summary;
}

std::vector<Tournament::Entrant*> Tournament::atTable(int table) {
  std::vector<Entrant*> entrants;
  for (Entrant& entrant : entrants_)
    if (entrant.table == table) entrants.push_back(&entrant);
  return entrants;
}

std::vector<int> Tournament::tables() {
  std::vector<int> tables = {firstTable(), secondTable()};
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
  tell<LobbyPlayerList>(Body().i16(1).i32(person.id).text(person.nick).i8(0).i16(0));
}

void Tournament::withdraw(const Person& person) {
  std::erase_if(entrants_, [&](const Entrant& entrant) { return entrant.person.id == person.id; });
  --summary_.entrants;
  --summary_.players;
  summary_.prizePool -= Tour::BUY_IN;
  tell<LobbyPlayerList>(Body().i16(0).i16(1).i32(person.id));
}

std::int64_t Tournament::averageChips() const {
  const auto chips = std::accumulate(entrants_.begin(), entrants_.end(), std::int64_t{0},
                                     [](std::int64_t sum, const Entrant& entrant) { return sum + entrant.chips; });
  return level_ > 0 ? chips / summary_.players : 0;
}

// The listener's own view of the tournament.
Body Tournament::infoFor(int listener) const {
  const std::vector<const Entrant*> ranking = this->ranking();
  const Entrant* user = find(listener);
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
  for (const int listener : audience().listeners()) tellLobby(listener);
}

void Tournament::tellLobby(int listener) {
  tellOne<SpecificTourSummary>(listener, Body().fields(summary(summaryFor(listener))).fields(infoFor(listener)));
  std::vector<Body> players;
  for (const Entrant& entrant : entrants_)
    players.push_back(Body().i32(entrant.person.id).text(entrant.person.nick).i8(0));
  tellOne<LobbyPlayerList>(listener, Body().list<std::int16_t>(players).i16(0));
  tellTables({listener}, {});
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
  for (const int listener : audience().listeners()) {
    tellOne<SpecificTourSummaryUpdate>(listener,
                                       Body().fields(summaryUpdate(summaryFor(listener))).fields(infoFor(listener)));
    const Entrant* entrant = find(listener);
    if (entrant != nullptr && entrant->isPlaying()) tellOne<TourUserRanking>(listener, ranked(*entrant));
  }
}

void Tournament::tellRankings() { tell<TourPlayerRankingListInfo>(rankedList(ranking())); }

void Tournament::tellTables() { tellTables(audience().listeners(), std::exchange(closedTables_, {})); }

void Tournament::tellTables(const std::vector<int>& listeners, const std::vector<int>& closed) {
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
  const Body list = Body().list<std::int16_t>(infos).list<std::int16_t, std::int32_t>(closed);
  tellSome<LobbyTableList>(listeners, [&](int) -> const Body& { return list; });
  for (const Body& ranking : rankings) tellSome<LobbyTablePlayerList>(listeners, [&](int) { return ranking; });
}

void Tournament::invite(const Entrant& entrant) {
  constexpr int NODE = 22;
  const int player = entrant.person.id;
  tellOne<LobbyTourInvitationMsg>(
      player, Body().i32(summary_.id).i32(entrant.table).i16(NODE).i32(Tour::PORT).i16(TOURNAMENT_CHIPS));
  audience().answered(entrant.person, TournamentTableReqMsg(player, summary_.id, entrant.table));
}

void Tournament::start() {
  const bool isOneTable = entrants_.size() <= PLAYERS_PER_TABLE;
  for (std::size_t i = 0; i < entrants_.size(); ++i) {
    entrants_[i].table = isOneTable || i % 2 == 0 ? firstTable() : secondTable();
    entrants_[i].chips = Tour::STARTING_CHIPS;
  }
  level_ = 1;
  summary_.status = AllowedTournamentStatus::RUNNING;
  summary_.startTime = audience().now();
  levelEnd_ = summary_.startTime + Tour::LEVEL_MS;
  breakStart_ = summary_.startTime + Tour::REBUY_LEVELS * Tour::LEVEL_MS;
  for (const Entrant& entrant : entrants_) invite(entrant);
  notify(AllowedTournamentNotification::STARTED);
  tellTables();
  tellLevel();
}

Body Tournament::level(int number) {
  const std::int64_t small = smallBlind(number);
  const std::int64_t ante = anteOf(number);
  return Body()
      .i16(number)
      .i64(Tour::LEVEL_MS)
      .i16(-1)
      .money(chipsOf(small))
      .money(chipsOf(2 * small))
      .money(chipsOf(ante));
}

void Tournament::tellLevel() {
  const bool hasBreak = (summary_.attributes & Tour::REBUYS) != 0 && level_ <= Tour::REBUY_LEVELS;
  const std::int64_t untilBreak = hasBreak ? breakStart_ - audience().now() : -1;
  tell<TourLevelInfoMsg>(level(level_));
  tell<TourNextLevelInfoMsg>(Body().fields(level(level_)).fields(level(level_ + 1)));
  tell<TourBreakNotification>(Body().i64(untilBreak).i64(untilBreak < 0 ? -1 : BREAK_MS));
}

void Tournament::nextLevel() {
  waitForLevelEnd();
  raiseLevel();
}

std::int64_t Tournament::bigBlind() const { return 2 * smallBlind(level_); }

std::int64_t Tournament::ante() const { return anteOf(level_); }

void Tournament::settle(const std::vector<std::pair<int, std::int64_t>>& chipsOfPlayers) {
  for (const auto& [player, chips] : chipsOfPlayers) {
    const auto entrant = std::ranges::find(entrants_, player, [](const Entrant& one) { return one.person.id; });
    if (entrant == entrants_.end()) throw std::logic_error("a player who has not entered");
    entrant->chips = chips;
  }
  check();
}

void Tournament::raiseLevel() {
  ++level_;
  levelEnd_ += Tour::LEVEL_MS;
  tellLevel();
}

void Tournament::waitForLevelEnd() {
  const std::int64_t wait = levelEnd_ - audience().now();
  if (wait < 0) throw std::logic_error("the level has ended before");
  audience().pause(wait);
}

void Tournament::win(Entrant& winner, Entrant& loser, std::int64_t amount) {
  amount = std::min(amount, winner.chips);
  if (amount <= 0 || amount > loser.chips) throw std::logic_error("chips that are not there");
  loser.chips -= amount;
  winner.chips += amount;
}

void Tournament::playHands(int count) {
  for (int hand = 0; hand < count; ++hand) {
    audience().pause(HAND_MS);
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
    audience().pause(HAND_MS);
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
  const std::int64_t wait = breakStart_ + BREAK_MS - audience().now();
  if (wait < 0) throw std::logic_error("the break has ended before");
  audience().pause(wait);
  summary_.status = AllowedTournamentStatus::RUNNING;
  tell<TourBreakEnd>();
  levelEnd_ = audience().now();
}

void Tournament::notify(AllowedTournamentNotification event) { tell<TourNotification>(Body().i8(event)); }

void Tournament::notifyTable(AllowedTableNotificationEvent event) { tell<TableNotification>(Body().i8(event)); }

void Tournament::synchronise(AllowedTournamentSynchedEvent event) { tell<TourSynchInfo>(Body().i8(event)); }

void Tournament::tellRebuyPeriod(bool isAddon) {
  const std::int64_t end = breakStart_ + (isAddon ? BREAK_MS : 0);
  const std::int64_t left = std::max(end - audience().now(), std::int64_t{-1});
  tellEach<TournamentRebuyNotificationMsg>([&](int listener) {
    const Entrant* entrant = find(listener);
    const int rebuysLeft = entrant == nullptr ? 0 : isAddon ? !entrant->hasAddon : Tour::REBUYS_EACH - entrant->rebuys;
    return Body().i64(left).flag(isAddon).i32(rebuysLeft);
  });
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

// The last three win; the winner's share may begin with a ticket.
std::int64_t Tournament::prize(int position) const {
  const std::int64_t third = summary_.prizePool * 20 / 100;
  const std::int64_t second = summary_.prizePool * 30 / 100;
  const std::int64_t prizes[] = {summary_.prizePool - second - third, second, third};
  return position >= 1 && position <= Tour::PAID_PLACES ? prizes[position - 1] : 0;
}

std::int64_t Tournament::prizeOf(int player) const {
  const Entrant* entrant = find(player);
  return entrant == nullptr ? 0 : prize(entrant->position);
}

void Tournament::tellKnockout(const Entrant& entrant) {
  const bool winsTicket = entrant.position == 1 && summary_.ticketValue > 0;
  const std::int64_t prize = this->prize(entrant.position);
  prizesPaid_ += prize;
  Body body;
  body.i32(entrant.person.id).text(entrant.person.nick).i32(entrant.position);
  if (prize > 0)
    body.i16(1).money(euros(prize - (winsTicket ? summary_.ticketValue : 0)));
  else
    body.i16(0);
  if (winsTicket)
    body.i16(1).text(TICKET);
  else
    body.i16(0);
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
  const std::vector<int> left = listenersAt(from);
  const std::vector<int> joined = listenersAt(table);
  tellSome<TourPlayerLeave>(left, [&](int) { return Body().i32(moved.person.id).text(tableName(table)); });
  moved.table = table;
  tellSome<TourPlayerArrive>(joined, [&](int) { return Body().text(moved.person.nick).text(tableName(from)); });
  invite(moved);
}

void Tournament::balanceTables() {
  std::vector<Entrant*> fuller = atTable(firstTable());
  std::vector<Entrant*> emptier = atTable(secondTable());
  if (fuller.size() < emptier.size()) std::swap(fuller, emptier);
  if (emptier.empty()) return;
  const int keptTable = fuller.front()->table;
  const int otherTable = emptier.front()->table;
  if (fuller.size() + emptier.size() > PLAYERS_PER_TABLE) {
    if (fuller.size() > emptier.size() + 1) moveTo(otherTable, *fuller.back());
    return;
  }
  tellSome<TableNotification>(listenersAt(otherTable),
                              [](int) { return Body().i8(AllowedTableNotificationEvent::BREAKING_UP); });
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

}  // namespace CardRoom
