#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

namespace GameTypes {

enum class AllowedGameType : int {
  UNKNOWN = -1,
  TEXAS_HOLDEM,
  OMAHA,
  OMAHA_HI_LO,
  SEVEN_CARD_STUD,
  SEVEN_CARD_STUD_HI_LO,
  FIVE_CARD_STUD,
  FIVE_CARD_DRAW,
  RAZZ
};

}  // namespace GameTypes

/// A game that is played at a table.
class HERALD_API GameType : public NamedValue<GameTypes::AllowedGameType> {
 public:
  using NamedValue::NamedValue;
};

class HERALD_API GameTypeFactory {
 public:
  /// The constant of a value, never null; for a value without a name that of `UNKNOWN`.
  static const GameType* createGameType(GameTypes::AllowedGameType value);
};

}  // namespace Tessel
