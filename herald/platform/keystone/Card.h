#pragma once
#include <herald/platform/keystone/Export.h>

#include <cstdint>
#include <string>

namespace Tessel {

/// A playing card. Any number is a defined colour or type; one outside the named values is unknown, as `HIDDEN` is.
class HERALD_API Card {
 public:
  enum class Color : std::int8_t { CLUBS, DIAMONDS, HEARTS, SPADES, HIDDEN };
  enum class Type : std::int8_t {
    TWO,
    THREE,
    FOUR,
    FIVE,
    SIX,
    SEVEN,
    EIGHT,
    NINE,
    TEN,
    JACK,
    QUEEN,
    KING,
    ACE,
    HIDDEN
  };

  /// The hidden card.
  constexpr Card() = default;
  constexpr Card(Color color, Type type) : color_(color), type_(type) {}

  constexpr Color getColor() const { return color_; }
  constexpr Type getType() const { return type_; }

  /// True unless both colour and type are known: only then is there a face to show.
  bool isHidden() const;

  /// Rank, then suit, as "Ah" or "Tc"; a half that is unknown is "?".
  std::wstring toCString() const;

  /// Becomes one of the 52 cards, each as likely as the others. For display, not for dealing.
  void setRandomCard();

  bool operator==(const Card&) const = default;

 private:
  Color color_ = Color::HIDDEN;
  Type type_ = Type::HIDDEN;
};

}  // namespace Tessel
