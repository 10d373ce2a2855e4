#include "LiveTable.h"

#include <herald/messages/SeatEvents.h>

#include <utility>

using namespace Tessel;

namespace CardRoom {

LiveTable::LiveTable(asio::io_context& io, Clients& clients, const Game& game, const Pace& pace, int firstHand,
                     std::uint32_t seed, std::function<void(LiveTable&)> handEnded)
    : clients_(clients), pace_(pace), handEnded_(std::move(handEnded)), timer_(io), table_(*this, game, {}, seed) {
  table_.setHandNumber(firstHand - 1);
}

std::int64_t LiveTable::now() const {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

void LiveTable::listen(int player) {
  std::erase(listeners_, player);
  listeners_.push_back(player);
  table_.tellGameState(player);
  if (isToAct(player)) ask();
}

void LiveTable::unlisten(int player) {
  if (std::erase(listeners_, player) > 0 && isToAct(player)) ask();
}

bool LiveTable::isToAct(int player) {
  const Player* toAct = table_.isHandRunning() ? table_.toAct() : nullptr;
  return toAct != nullptr && toAct->person.id == player;
}

void LiveTable::play() {
  if (isStopped_ || table_.isHandRunning() || isWaitingForNextHand_ || table_.playersReady() < 2) return;
  isWaitingForNextHand_ = true;
  timer_.expires_after(pace_.betweenHands);
  timer_.async_wait([this](asio::error_code error) {
    if (error) return;
    isWaitingForNextHand_ = false;
    if (!isStopped_ && table_.playersReady() >= 2) startHand();
  });
}

void LiveTable::startHand() {
  allInShown_ = false;
  table_.startHand();
  if (table_.game().ante > 0) table_.postAntes();
  table_.postBlinds();
  table_.dealHands(2);
  table_.startBetting();
  goOn();
}

// To the next player's move, or to the end of the hand.
void LiveTable::goOn() {
  using enum AllowedDealType;
  constexpr AllowedDealType STREETS[] = {FLOP, FLOP, FLOP, TURN, RIVER};  // by the cards on the board
  constexpr int FULL_BOARD = 5;
  while (table_.toAct() == nullptr) {
    table_.endBetting();
    if (table_.playersInHand() == 1) {
      table_.winUncalled(false);
      return endHand();
    }
    if (table_.isAllIn() && !std::exchange(allInShown_, true)) table_.showAllIn();
    if (table_.boardSize() == FULL_BOARD) {
      table_.showdown();
      return endHand();
    }
    if (table_.isAllIn() && table_.boardSize() == FULL_BOARD - 1) table_.tellChances();
    table_.dealBoard(STREETS[table_.boardSize()]);
    table_.startBetting();
  }
  ask();
}

void LiveTable::ask() {
  const int player = table_.toAct()->person.id;
  const bool isAway = !clients_.isConnected(player) || leaving_.contains(player);
  if (isAway) table_.setSlow(*table_.toAct(), true);
  table_.askMove();
  timer_.expires_after(isAway ? pace_.toActAway : pace_.toAct);
  timer_.async_wait([this, turn = ++turn_](asio::error_code error) {
    if (!error && turn == turn_) timeOut();
  });
}

void LiveTable::timeOut() {
  table_.tell<ClientPlayerTimeout>(Body().i32(table_.toAct()->person.id));
  make(table_.chipsFor(CHECK) == 0 ? CHECK : FOLD);
}

void LiveTable::move(int player, Move::Kind kind, std::int64_t chips) {
  if (!isToAct(player)) return;
  const Move wanted = kind == Move::RAISE ? raiseTo(table_.toAct()->bet + chips) : Move{kind};
  make(table_.allows(wanted) ? wanted : CALL);
}

void LiveTable::make(const Move& move) {
  ++turn_;
  timer_.cancel();
  table_.makeMove(move);
  goOn();
}

void LiveTable::takeMoney(int player, std::int64_t amount) {
  Player& taking = table_.player(player);
  if (!taking.inHand) return table_.takeMoney(taking.person, amount);
  wantedMoney_[player] = amount;
  table_.tellOne<ReserveMoneyReplyPending>(player);
}

void LiveTable::leave(int player, std::function<void(std::int64_t)> left) {
  leaving_[player] = std::move(left);
  if (!table_.isInHand(player)) return letGo(player);
  if (isToAct(player)) make(FOLD);
}

void LiveTable::letGo(int player) {
  const auto left = std::move(leaving_.at(player));
  leaving_.erase(player);
  const std::int64_t account = table_.leave(table_.player(player).person);
  unlisten(player);
  left(account);
}

void LiveTable::endHand() {
  handEnded_(*this);
  for (const auto& [player, amount] : std::exchange(wantedMoney_, {}))
    if (table_.find(player) != nullptr) table_.takeMoney(table_.player(player).person, amount);
  while (!leaving_.empty()) letGo(leaving_.begin()->first);
  play();
}

}  // namespace CardRoom
