#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

enum class AllowedTournamentRebuyFailed : int {
  UNKNOWN = -1,
  NOT_ENOUGH_MONEY,
  PERIOD_ENDED,
  NO_REBUYS_LEFT,
  TOO_MANY_CHIPS,
  ADDON_ALREADY_TAKEN,
  NOT_IN_TOURNAMENT,
  SERVER_ERROR
};

/// Why a rebuy or an add-on was refused.
class HERALD_API TournamentRebuyFailed : public NamedValue<AllowedTournamentRebuyFailed> {
 public:
  using NamedValue::NamedValue;
};

class HERALD_API TournamentRebuyFailedFactory {
 public:
  /// The constant of a value. Throws `OutOfBoundsException` for a value without a name; `UNKNOWN` has one.
  static const TournamentRebuyFailed& createTournamentRebuyFailed(AllowedTournamentRebuyFailed value);
};

}  // namespace Tessel
