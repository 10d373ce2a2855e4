#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

enum class AllowedDealType : int {
  UNKNOWN = -1,
  HOLE_CARDS,
  FLOP,
  TURN,
  RIVER,
  THIRD_STREET,
  FOURTH_STREET,
  FIFTH_STREET,
  SIXTH_STREET,
  SEVENTH_STREET,
  DRAW
};

/// Which cards of a hand are dealt.
class HERALD_API DealType : public NamedValue<AllowedDealType> {
 public:
  using AllowedDealType = Tessel::AllowedDealType;
  using NamedValue::NamedValue;

  /// The constant of a value; for a value without a name that of `UNKNOWN`.
  static const DealType& getDealType(AllowedDealType value);
};

}  // namespace Tessel
