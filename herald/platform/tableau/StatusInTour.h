#pragma once
#include <herald/platform/keystone/Export.h>

#include <string_view>

namespace Tessel {

/// How the user stands in a tournament.
enum class StatusInTour : int {
  UNKNOWN = -1,
  NOT_PLAYING,
  WAITING_FOR_START,
  PLAYING,
  WAITING_FOR_SEAT,
  KNOCKED_OUT,
  FINISHED
};

/// The English name of a value, which lives as long as the process; for a value without one that of `UNKNOWN`.
HERALD_API std::wstring_view getName(StatusInTour value);

}  // namespace Tessel
