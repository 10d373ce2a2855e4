#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

enum class AllowedPrizeStructureType : int {
  UNKNOWN = -1,
  STANDARD,
  WINNER_TAKES_ALL,
  TOP_HEAVY,
  FLAT,
  DOUBLE_OR_NOTHING,
  SATELLITE
};

/// How the prize pool of a tournament is shared out.
class HERALD_API PrizeStructureType : public NamedValue<AllowedPrizeStructureType> {
 public:
  using NamedValue::NamedValue;

  /// The constant of a value; for a value without a name that of `UNKNOWN`.
  static const PrizeStructureType& getPrizeStructureType(AllowedPrizeStructureType value);
};

}  // namespace Tessel
