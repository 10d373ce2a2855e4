#pragma once
#include <herald/platform/keystone/Export.h>

#include <string_view>

namespace Tessel::Tourney {

/// How a tournament starts.
enum class TournamentType : int { UNKNOWN = -1, SIT_AND_GO, SCHEDULED };

/// The English name of a value, which lives as long as the process; for a value without one that of `UNKNOWN`.
HERALD_API std::wstring_view getName(TournamentType value);

}  // namespace Tessel::Tourney
