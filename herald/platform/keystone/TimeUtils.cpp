#include <herald/platform/keystone/SystemClock.h>
#include <herald/platform/keystone/TimeUtils.h>

namespace Tessel::TimeUtils {

TsTime getTime() { return TsTime(SystemClock::getCalendarTime()); }

TsTime getTimeFromOffset(std::int64_t seconds) { return getTime() + TsTimeSpan(seconds); }

}  // namespace Tessel::TimeUtils
