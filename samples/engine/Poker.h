#pragma once
#include <array>
#include <cstdint>
#include <random>
#include <span>
#include <string_view>
#include <vector>

namespace CardRoom {

/// Numbers that look random and are the same at every run, on every machine.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}
  /// 0 to `sides` - 1.
  int roll(int sides) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(sides)); }

 private:
  std::mt19937 engine_;
};

struct Card {
  int rank = 0;  ///< 2 to 14, an ace
  int suit = 0;  ///< by its place in "dhcs", which is also its color on the wire

  /// An ace travels as 1.
  int wireNumber() const { return rank == 14 ? 1 : rank; }
  bool operator==(const Card&) const = default;
};
using Cards = std::vector<Card>;

/// 52 cards, of which those named (as in "Ah Tc 2d") come first, in that order.
class Deck {
 public:
  Deck(std::string_view firstCards, Dice& dice);
  Card deal();
  /// What is still in it.
  std::span<const Card> rest() const { return std::span(cards_).subspan(next_); }

 private:
  Cards cards_;
  std::size_t next_ = 0;
};

/// What five cards are worth: the category (0, a high card, to 9, a royal flush), then the ranks that decide, highest
/// first. Greater is better.
using HandRank = std::array<int, 6>;

struct BestHand {
  HandRank rank{};
  Cards cards;
};

/// The best five of five to seven cards.
BestHand bestHand(std::span<const Card> cards);

}  // namespace CardRoom
