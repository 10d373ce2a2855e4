#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

enum class AllowedPotType : int { UNKNOWN = -1, MAIN_POT, SIDE_POT, HIGH_POT, LOW_POT, UNCALLED_BET };

/// A part of the pot that is won.
class HERALD_API PotType : public NamedValue<AllowedPotType> {
 public:
  using NamedValue::NamedValue;

  /// The constant of a value; for a value without a name that of `UNKNOWN`.
  static const PotType& getPotType(AllowedPotType value);
};

}  // namespace Tessel
