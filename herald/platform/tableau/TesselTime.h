#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/keystone/SaturatingArithmetic.h>

#include <compare>
#include <cstdint>

namespace Tessel {

/// A length of time in a tournament's schedule, in seconds.
class HERALD_API TesselTimeSpan {
 public:
  constexpr TesselTimeSpan() = default;
  constexpr explicit TesselTimeSpan(std::int64_t seconds) : seconds_(seconds) {}

  constexpr std::int64_t getSeconds() const { return seconds_; }

  auto operator<=>(const TesselTimeSpan&) const = default;

 private:
  std::int64_t seconds_ = 0;
};

/// A moment of a tournament's schedule, in seconds since the beginning of 1970 UTC. Sums and differences stop at the
/// ends of 64 bits.
class HERALD_API TesselTime {
 public:
  constexpr TesselTime() = default;
  constexpr explicit TesselTime(std::int64_t seconds) : seconds_(seconds) {}

  /// The moment that lies `seconds` after the present by `SystemClock`, or before it when negative.
  static TesselTime createFromSecondsOffset(std::int64_t seconds);

  constexpr std::int64_t getSeconds() const { return seconds_; }

  auto operator<=>(const TesselTime&) const = default;

  friend constexpr TesselTime operator+(TesselTime time, TesselTimeSpan span) {
    return TesselTime(SaturatingArithmetic::add(time.seconds_, span.getSeconds()));
  }
  friend constexpr TesselTimeSpan operator-(TesselTime end, TesselTime begin) {
    return TesselTimeSpan(SaturatingArithmetic::subtract(end.seconds_, begin.seconds_));
  }

 private:
  std::int64_t seconds_ = 0;
};

}  // namespace Tessel
