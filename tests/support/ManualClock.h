#pragma once
#include <herald/platform/keystone/SystemClock.h>

#include <atomic>
#include <memory>

namespace Tessel {

/// Clocks that stand still until a test sets them.
class ManualClock final : public ClockSource {
 public:
  std::uint32_t getTickCount() const override { return ticks; }
  std::int64_t getProcessClock() const override { return process; }
  std::int64_t getCalendarTime() const override { return calendar; }

  std::atomic<std::uint32_t> ticks = 0;
  std::atomic<std::int64_t> process = 0;
  std::atomic<std::int64_t> calendar = 0;
};

/// Installs a `ManualClock` while it lives.
class WithManualClock {
 public:
  WithManualClock() : clock(std::make_shared<ManualClock>()), before_(SystemClock::setSource(clock)) {}
  ~WithManualClock() { SystemClock::setSource(before_); }
  WithManualClock(const WithManualClock&) = delete;
  WithManualClock& operator=(const WithManualClock&) = delete;

  const std::shared_ptr<ManualClock> clock;

 private:
  std::shared_ptr<const ClockSource> before_;
};

}  // namespace Tessel
