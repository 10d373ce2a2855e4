#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

enum class AllowedTournamentSynchedEvent : int {
  UNKNOWN = -1,
  WAITING_FOR_HANDS_TO_END,
  ALL_TABLES_READY,
  WAITING_FOR_BREAK,
  WAITING_FOR_REBUYS,
  WAITING_FOR_ADDONS
};

/// What the tables of a tournament wait for together.
class HERALD_API TournamentSynchedEvent : public NamedValue<AllowedTournamentSynchedEvent> {
 public:
  using NamedValue::NamedValue;

  /// The constant of a value; for a value without a name that of `UNKNOWN`.
  static const TournamentSynchedEvent& getTournamentSynchedEvent(AllowedTournamentSynchedEvent value);
};

}  // namespace Tessel
