#pragma once
#include <herald/platform/keystone/Export.h>

#include <string_view>

namespace Tessel {

/// Whether the user is registered for a tournament.
enum class PlayerRegistrationStatus : int { UNKNOWN = -1, NOT_REGISTERED, IS_REGISTERED, WAITING, NOT_ALLOWED };

/// The English name of a value, which lives as long as the process; for a value without one that of `UNKNOWN`.
HERALD_API std::wstring_view getName(PlayerRegistrationStatus value);

}  // namespace Tessel
