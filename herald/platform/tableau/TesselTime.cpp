#include <herald/platform/keystone/SystemClock.h>
#include <herald/platform/tableau/TesselTime.h>

namespace Tessel {

TesselTime TesselTime::createFromSecondsOffset(std::int64_t seconds) {
  return TesselTime(SystemClock::getCalendarTime()) + TesselTimeSpan(seconds);
}

}  // namespace Tessel
