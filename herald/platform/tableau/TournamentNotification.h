#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

enum class AllowedTournamentNotification : int {
  UNKNOWN = -1,
  STARTED,
  HAND_FOR_HAND_STARTED,
  HAND_FOR_HAND_ENDED,
  IN_THE_MONEY,
  FINAL_TABLE,
  PAUSED,
  RESUMED,
  CANCELLED,
  ENDED
};

/// News about a running tournament.
class HERALD_API TournamentNotification : public NamedValue<AllowedTournamentNotification> {
 public:
  using NamedValue::NamedValue;
};

class HERALD_API TournamentNotificationFactory {
 public:
  /// The constant of a value. Throws `OutOfBoundsException` for a value without a name; `UNKNOWN` has one.
  static const TournamentNotification& createTournamentNotification(AllowedTournamentNotification value);
};

}  // namespace Tessel
