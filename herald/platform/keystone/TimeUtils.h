#pragma once
#include <herald/platform/keystone/TsTime.h>

namespace Tessel::TimeUtils {

/// The present, by `SystemClock`.
HERALD_API TsTime getTime();

/// The time that lies `seconds` after the present, or before it when negative.
HERALD_API TsTime getTimeFromOffset(std::int64_t seconds);

}  // namespace Tessel::TimeUtils
