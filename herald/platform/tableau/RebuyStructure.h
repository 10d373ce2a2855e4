#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

enum class AllowedRebuyStructure : int { UNKNOWN = -1, FREEZEOUT, REBUYS, ADDON, REBUYS_AND_ADDON };

/// Which purchases of chips a tournament allows after the buy-in.
class HERALD_API RebuyStructure : public NamedValue<AllowedRebuyStructure> {
 public:
  using NamedValue::NamedValue;
};

class HERALD_API RebuyStructureFactory {
 public:
  /// The constant of a value; for a value without a name that of `UNKNOWN`.
  static const RebuyStructure& createRebuyStructure(AllowedRebuyStructure value);
};

}  // namespace Tessel
