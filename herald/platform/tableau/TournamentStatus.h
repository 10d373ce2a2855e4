#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

enum class AllowedTournamentStatus : int {
  UNKNOWN = -1,
  ANNOUNCED,
  REGISTRATION_OPEN,
  REGISTRATION_CLOSED,
  SEATING,
  RUNNING,
  ON_BREAK,
  COMPLETED,
  CANCELLED
};

/// How far a tournament has come.
class HERALD_API TournamentStatus : public NamedValue<AllowedTournamentStatus> {
 public:
  using NamedValue::NamedValue;
};

class HERALD_API TournamentStatusFactory {
 public:
  /// The constant of a value; for a value without a name that of `UNKNOWN`.
  static const TournamentStatus& createTournamentStatus(AllowedTournamentStatus value);
};

}  // namespace Tessel
