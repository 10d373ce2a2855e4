#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

namespace LimitTypes {

enum class AllowedLimitType : int { UNKNOWN = -1, LIMIT, POT_LIMIT, NO_LIMIT, RAISE_FOLD };

}  // namespace LimitTypes

/// How high a bet may be.
class HERALD_API LimitType : public NamedValue<LimitTypes::AllowedLimitType> {
 public:
  using NamedValue::NamedValue;
};

class HERALD_API LimitTypeFactory {
 public:
  /// The constant of a value, never null; for a value without a name that of `UNKNOWN`.
  static const LimitType* createLimitType(LimitTypes::AllowedLimitType value);
};

}  // namespace Tessel
