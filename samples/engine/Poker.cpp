#include "Poker.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <stdexcept>

namespace CardRoom {

namespace {

constexpr int ACE = 14;
enum Category { HIGH_CARD, PAIR, TWO_PAIR, THREE, STRAIGHT, FLUSH, FULL_HOUSE, FOUR, STRAIGHT_FLUSH, ROYAL_FLUSH };

Card parseCard(std::string_view text) {
  const std::size_t rank = std::string_view("23456789TJQKA").find(text[0]);
  const std::size_t suit = std::string_view("dhcs").find(text[1]);
  if (rank == std::string_view::npos || suit == std::string_view::npos) throw std::invalid_argument("no card");
  return {static_cast<int>(rank) + 2, static_cast<int>(suit)};
}

Category categoryOf(std::span<const int> counts, bool isFlush, int straightTo) {
  if (isFlush && straightTo == ACE) return ROYAL_FLUSH;
  if (isFlush && straightTo) return STRAIGHT_FLUSH;
  if (counts[0] == 4) return FOUR;
  if (counts[0] == 3 && counts[1] == 2) return FULL_HOUSE;
  if (isFlush) return FLUSH;
  if (straightTo) return STRAIGHT;
  if (counts[0] == 3) return THREE;
  if (counts[0] == 2) return counts[1] == 2 ? TWO_PAIR : PAIR;
  return HIGH_CARD;
}

// The highest rank of a straight; 0 when it is none.
int straightTo(std::span<const int> ranks) {
  if (ranks.size() != 5) return 0;
  if (ranks[0] - ranks[4] == 4) return ranks[0];
  return ranks[0] == ACE && ranks[1] == 5 ? 5 : 0;
}

HandRank rankFive(std::span<const Card, 5> cards) {
  std::array<int, ACE + 1> countOf{};
  for (const Card& card : cards) ++countOf[static_cast<std::size_t>(card.rank)];
  std::vector<std::pair<int, int>> groups;
  for (int rank = ACE; rank >= 2; --rank)
    if (const int count = countOf[static_cast<std::size_t>(rank)]) groups.emplace_back(count, rank);
  std::ranges::stable_sort(groups, std::greater(), &std::pair<int, int>::first);

  std::array<int, 5> counts{};
  std::vector<int> ranks;
  for (const auto& [count, rank] : groups) {
    counts[ranks.size()] = count;
    ranks.push_back(rank);
  }
  const bool isFlush = std::ranges::all_of(cards, [&](const Card& card) { return card.suit == cards[0].suit; });
  const int top = straightTo(ranks);
  if (top) ranks = {top};
  HandRank result{categoryOf(counts, isFlush, top)};
  std::ranges::copy(ranks, result.begin() + 1);
  return result;
}

}  // namespace

Deck::Deck(std::string_view firstCards, Dice& dice) {
  for (int suit = 0; suit < 4; ++suit)
    for (int rank = 2; rank <= ACE; ++rank) cards_.push_back({rank, suit});
  std::size_t placed = 0;
  for (std::size_t i = 0; i < firstCards.size(); i += 3, ++placed) {
    const auto card =
        std::find(cards_.begin() + static_cast<int>(placed), cards_.end(), parseCard(firstCards.substr(i)));
    if (card == cards_.end()) throw std::invalid_argument("a card that is in the deck only once");
    std::swap(cards_[placed], *card);
  }
  for (std::size_t i = cards_.size() - 1; i > placed; --i)
    std::swap(cards_[i], cards_[placed + static_cast<std::size_t>(dice.roll(static_cast<int>(i - placed) + 1))]);
}

Card Deck::deal() { return cards_.at(next_++); }

BestHand bestHand(std::span<const Card> cards) {
  BestHand best;
  std::array<Card, 5> five;
  for (unsigned chosen = 0; chosen < 1U << cards.size(); ++chosen) {
    if (std::popcount(chosen) != 5) continue;
    std::size_t count = 0;
    for (std::size_t i = 0; i < cards.size(); ++i)
      if (chosen >> i & 1) five[count++] = cards[i];
    if (const HandRank rank = rankFive(five); rank > best.rank) best = {rank, Cards(five.begin(), five.end())};
  }
  return best;
}

}  // namespace CardRoom
