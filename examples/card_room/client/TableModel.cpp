#include "TableModel.h"

#include <herald/platform/keystone/SaturatingArithmetic.h>

#include <algorithm>

using namespace Tessel;

namespace CardRoom {

namespace {

// What a server says may make no sense; the sums stay defined.
void add(std::int64_t& to, std::int64_t amount) { to = SaturatingArithmetic::add(to, amount); }
void take(std::int64_t& from, std::int64_t amount) { from = SaturatingArithmetic::subtract(from, amount); }

}  // namespace

void TableModel::show(const PokerGameStateInfo& state) {
  const PokerGameInfo shown = state.getPokerGameInfo();
  *this = {};
  isOpen = true;
  game = shown.getId();
  name = shown.getName();
  unit = shown.getMonetaryUnitId();
  seatCount = shown.getMaxNrPlayers();
  bigBlind = state.getPokerRulesInfo().getBigBlind().getAmount();
  hand = state.getHandId();
  dealer = state.getDealerSeat();
  pot = state.getPotValue();
  rake = state.getCurrentRake();
  for (int i = 0; i < state.getNrPlayers(); ++i) {
    const PlayerStateInfo& player = state.getPlayerState(i);
    sitDown(player.getSeat(), player.getPlayerInGameInfo());
    Seat& seat = seats[player.getSeat()];
    seat.bet = player.getBetsNotInPot();
    take(seat.stack, seat.bet);
    seat.isSittingIn = player.isSittingIn();
  }
  dealt(state.getCardsInfo());
  for (auto& [number, seat] : seats) seat.isInHand = !seat.cards.empty();
}

void TableModel::startHand(const NewRoundInfo& started) {
  hand = started.getHandNumber();
  pot = rake = 0;
  toAct = -1;
  board.clear();
  for (auto& [seatNumber, seat] : seats) {
    seat.bet = 0;
    seat.cards.clear();
    seat.lastMove.clear();
    seat.isInHand = seatNumber >= 0 && seatNumber < started.getNrOfPlayers() && started.getPlayer(seatNumber);
  }
}

void TableModel::sitDown(int seat, const PlayerInGameInfo& player) {
  seats[seat] = {.player = player.getId(), .nick = player.getNickName(), .stack = player.getMoneyAtTable().getAmount()};
}

void TableModel::standUp(int player) {
  std::erase_if(seats, [player](const auto& seat) { return seat.second.player == player; });
}

void TableModel::setMoney(const PlayerInGameInfo& player) {
  if (Seat* seat = seatOf(player.getId()))
    seat->stack = SaturatingArithmetic::subtract(player.getMoneyAtTable().getAmount(), seat->bet);
}

void TableModel::bet(const CreditInfo& credit, const std::wstring& move) {
  const auto seat = seats.find(credit.getSeat());
  if (seat == seats.end()) return;
  take(seat->second.stack, credit.getAmount());
  add(seat->second.bet, credit.getAmount());
  seat->second.lastMove = move;
}

void TableModel::betDead(const CreditInfo& credit) {
  const auto seat = seats.find(credit.getSeat());
  if (seat == seats.end()) return;
  take(seat->second.stack, credit.getAmount());
  add(pot, credit.getAmount());
}

void TableModel::betToPot(const CreditInfo& credit) {
  const auto seat = seats.find(credit.getSeat());
  if (seat != seats.end()) take(seat->second.bet, credit.getAmount());
  add(pot, credit.getAmount());
}

void TableModel::win(const WinPotInfo& won) {
  const CreditInfo& credit = won.getCreditInfo();
  const bool isUncalled = won.getPotType().getValue() == AllowedPotType::UNCALLED_BET;
  if (!isUncalled) take(pot, credit.getAmount());
  const auto seat = seats.find(credit.getSeat());
  if (seat == seats.end()) return;
  if (isUncalled) take(seat->second.bet, credit.getAmount());
  add(seat->second.stack, credit.getAmount());
  if (!isUncalled) seat->second.lastMove = L"wins";
}

void TableModel::fold(int seatNumber) {
  const auto seat = seats.find(seatNumber);
  if (seat == seats.end()) return;
  seat->second.isInHand = false;
  seat->second.lastMove = L"folds";
}

void TableModel::takeRake(std::int64_t total) {
  take(pot, total);
  add(pot, rake);
  rake = total;
}

void TableModel::dealt(const CardsInfo& cards) {
  for (int i = 0; i < cards.getNrCards(); ++i) {
    const CardInfo& card = cards.getCardInfo(i);
    if (card.isTableCard())
      board.push_back(card.getCard());
    else if (const auto seat = seats.find(card.getSeat()); seat != seats.end())
      seat->second.cards.push_back(card.getCard());
  }
}

void TableModel::turnUp(const CardsInfo& cards) {
  std::map<int, std::vector<Card>> shown;
  for (int i = 0; i < cards.getNrCards(); ++i)
    if (!cards.getCardInfo(i).isTableCard())
      shown[cards.getCardInfo(i).getSeat()].push_back(cards.getCardInfo(i).getCard());
  for (auto& [number, faces] : shown)
    if (const auto seat = seats.find(number); seat != seats.end()) seat->second.cards = faces;
}

TableModel::Seat* TableModel::seatOf(int player) {
  const auto seat = seats.find(seatNumberOf(player));
  return seat == seats.end() ? nullptr : &seat->second;
}

const TableModel::Seat* TableModel::seatOf(int player) const {
  const auto seat = seats.find(seatNumberOf(player));
  return seat == seats.end() ? nullptr : &seat->second;
}

int TableModel::seatNumberOf(int player) const {
  const auto seat = std::ranges::find_if(seats, [player](const auto& one) { return one.second.player == player; });
  return seat == seats.end() ? -1 : seat->first;
}

int TableModel::freeSeat() const {
  for (int seat = 0; seat < seatCount; ++seat)
    if (!seats.contains(seat)) return seat;
  return -1;
}

std::map<int, std::int64_t> TableModel::stacks() const {
  std::map<int, std::int64_t> stacks;
  for (const auto& [number, seat] : seats) stacks[seat.player] = seat.stack;
  return stacks;
}

}  // namespace CardRoom
