#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

enum class AllowedBlindLevelSpeed : int { UNKNOWN = -1, SLOW, NORMAL, TURBO, HYPER_TURBO };

/// How fast the blinds of a tournament rise.
class HERALD_API BlindLevelSpeed : public NamedValue<AllowedBlindLevelSpeed> {
 public:
  using NamedValue::NamedValue;
};

class HERALD_API BlindLevelSpeedFactory {
 public:
  /// The constant of a value; for a value without a name that of `UNKNOWN`.
  static const BlindLevelSpeed& createBlindLevelSpeed(AllowedBlindLevelSpeed value);
};

}  // namespace Tessel
