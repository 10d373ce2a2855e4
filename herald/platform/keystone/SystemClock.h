#pragma once
#include <herald/platform/keystone/Export.h>

#include <cstdint>
#include <memory>
#include <string>

namespace Tessel {

/// Where `SystemClock` takes its readings from. Its operations may be called from several threads at once.
class HERALD_API ClockSource {
 public:
  virtual ~ClockSource();
  virtual std::uint32_t getTickCount() const = 0;
  virtual std::int64_t getProcessClock() const = 0;
  virtual std::int64_t getCalendarTime() const = 0;
};

/// The clocks that the library reads. All operations are safe from any thread.
class HERALD_API SystemClock {
 public:
  /// Milliseconds of a steady counter that wraps to 0 after 32 bits, about 49.7 days.
  static std::uint32_t getTickCount();
  /// Milliseconds since the process started (strictly: since it loaded the library).
  static std::int64_t getProcessClock();
  /// Seconds since the beginning of 1970 UTC.
  static std::int64_t getCalendarTime();

  /// Installs another source, as a test does to set the clocks, and answers the one that it replaces. Null installs the
  /// operating system's clocks.
  static std::shared_ptr<const ClockSource> setSource(std::shared_ptr<const ClockSource> source);
};

/// The operating system's text for one of its error codes, in one line; not empty for an unknown code either.
HERALD_API std::wstring getSystemErrorText(unsigned long code);

}  // namespace Tessel
