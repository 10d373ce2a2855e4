#include "SitAndGo.h"

#include <algorithm>
#include <utility>

namespace CardRoom {

namespace {

constexpr int HANDS_A_LEVEL = 5;

}  // namespace

SitAndGo::SitAndGo(asio::io_context& io, Clients& clients, const TournamentSummary& summary, const Pace& pace,
                   int firstHand, std::uint32_t seed, Events events)
    : io_(io), clients_(clients), id_(summary.id), pace_(pace), firstHand_(firstHand), seed_(seed),
      events_(std::move(events)), tournament_(*this, summary) {}

std::int64_t SitAndGo::now() const {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

void SitAndGo::listen(int player) {
  std::erase(listeners_, player);
  listeners_.push_back(player);
  tournament_.tellLobby(player);
}

void SitAndGo::enter(const Person& person) {
  entrants_.push_back(person);
  money_ += TournamentSummary::BUY_IN;
  tournament_.enter(person);
  tournament_.tellProgress();
  events_.changed(*this);
  if (entrants_.size() == PLAYERS_PER_TABLE) start();
}

void SitAndGo::withdraw(const Person& person) {
  std::erase_if(entrants_, [&](const Person& entrant) { return entrant.id == person.id; });
  money_ -= TournamentSummary::BUY_IN;
  tournament_.withdraw(person);
  tournament_.tellProgress();
  events_.changed(*this);
}

void SitAndGo::start() {
  const Game game = {.id = tournament_.firstTable(),
                     .name = L"Sit & Go, table 1",
                     .unit = TOURNAMENT_CHIPS,
                     .bigBlind = 20,
                     .maxPlayers = PLAYERS_PER_TABLE};
  table_.emplace(io_, clients_, game, pace_, firstHand_, seed_, [this](LiveTable&) { handEnded(); });
  int seat = 0;
  for (const Person& entrant : entrants_) {
    Table& table = table_->table();
    table.enter(entrant, TournamentSummary::STARTING_CHIPS);
    table.sitDown(entrant, seat++);
    table.takeMoney(entrant, TournamentSummary::STARTING_CHIPS);
    table.sitIn(entrant, false);
  }
  tournament_.start();
  tournament_.tellProgress();
  events_.changed(*this);
  table_->play();
}

void SitAndGo::handEnded() {
  events_.handEnded(*table_);
  std::vector<std::pair<int, std::int64_t>> stacks;
  std::vector<Person> busted;
  for (const Player& player : table_->table().players()) {
    stacks.emplace_back(player.person.id, player.stack);
    if (player.stack == 0) busted.push_back(player.person);
  }
  tournament_.settle(stacks);
  for (const Person& person : busted) {
    table_->leave(person.id, [](std::int64_t) {});
    tournament_.knockOut(person);
    pay(person);
  }
  if (!busted.empty()) tournament_.tellProgress();
  if (++hands_ % HANDS_A_LEVEL == 0) {
    tournament_.raiseLevel();
    tournament_.tellRankings();
    table_->table().changeBlinds(tournament_.bigBlind(), tournament_.ante());
  }
  if (tournament_.playersLeft() > 1) return;
  const Person winner = tournament_.stacks().front().first;
  table_->stop();
  table_->leave(winner.id, [](std::int64_t) {});
  tournament_.finish();
  pay(winner);
  isOver_ = true;
  events_.changed(*this);
}

void SitAndGo::pay(const Person& person) {
  const std::int64_t prize = tournament_.prizeOf(person.id);
  money_ -= prize;
  events_.paid(person, prize);
}

}  // namespace CardRoom
