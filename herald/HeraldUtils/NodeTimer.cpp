#include <herald/HeraldUtils/NodeTimer.h>
#include <herald/platform/keystone/Format.h>
#include <herald/platform/keystone/SaturatingArithmetic.h>
#include <herald/platform/keystone/SystemClock.h>

namespace Tessel {

NodeTimer::~NodeTimer() = default;

int NodeTimer::setType(char type) {
  type_ = type;
  return static_cast<signed char>(type);
}

std::wstring NodeTimer::toDebugString() const {
  const std::int64_t secondsFromNow = SaturatingArithmetic::subtract(timeStamp_, SystemClock::getProcessClock()) / 1000;
  return formatText(L"[NodeTimer id=%d, type=%d timestamp=%d %d sec from now]", id_, static_cast<signed char>(type_),
                    timeStamp_, secondsFromNow);
}

}  // namespace Tessel
