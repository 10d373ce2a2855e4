#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

enum class AllowedCreatePrivateTournamentError : int {
  UNKNOWN = -1,
  NONE,
  NAME_NOT_ALLOWED,
  NAME_IN_USE,
  START_TIME_NOT_ALLOWED,
  BUY_IN_NOT_ALLOWED,
  SETTINGS_NOT_ALLOWED,
  TOO_MANY_TOURNAMENTS,
  NOT_PERMITTED,
  SERVER_ERROR
};

/// What came of the request to create a private tournament.
class HERALD_API CreatePrivateTournamentError : public NamedValue<AllowedCreatePrivateTournamentError> {
 public:
  using NamedValue::NamedValue;
};

class HERALD_API CreatePrivateTournamentErrorFactory {
 public:
  /// The constant of a value; for a value without a name that of `UNKNOWN`.
  static const CreatePrivateTournamentError& createCreatePrivateTournamentError(
      AllowedCreatePrivateTournamentError value);
};

}  // namespace Tessel
