#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

enum class AllowedHandValue : int {
  UNKNOWN = -1,
  HIGH_CARD,
  ONE_PAIR,
  TWO_PAIR,
  THREE_OF_A_KIND,
  STRAIGHT,
  FLUSH,
  FULL_HOUSE,
  FOUR_OF_A_KIND,
  STRAIGHT_FLUSH,
  ROYAL_FLUSH
};

/// The rank of a poker hand.
class HERALD_API HandValue : public NamedValue<AllowedHandValue> {
 public:
  using NamedValue::NamedValue;

  /// The constant of a value; for a value without a name that of `UNKNOWN`.
  static const HandValue& getHandValue(AllowedHandValue value);
};

}  // namespace Tessel
