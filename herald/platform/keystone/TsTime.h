#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/keystone/SaturatingArithmetic.h>

#include <compare>
#include <cstdint>

namespace Tessel {

/// A length of time in seconds.
class HERALD_API TsTimeSpan {
 public:
  constexpr TsTimeSpan() = default;
  constexpr explicit TsTimeSpan(std::int64_t seconds) : seconds_(seconds) {}

  constexpr std::int64_t getSeconds() const { return seconds_; }

  auto operator<=>(const TsTimeSpan&) const = default;

 private:
  std::int64_t seconds_ = 0;
};

/// A moment, in seconds since the beginning of 1970 UTC. Sums and differences stop at the ends of 64 bits.
class HERALD_API TsTime {
 public:
  constexpr TsTime() = default;
  constexpr explicit TsTime(std::int64_t seconds) : seconds_(seconds) {}

  constexpr std::int64_t getSeconds() const { return seconds_; }

  auto operator<=>(const TsTime&) const = default;

  friend constexpr TsTime operator+(TsTime time, TsTimeSpan span) {
    return TsTime(SaturatingArithmetic::add(time.seconds_, span.getSeconds()));
  }
  friend constexpr TsTimeSpan operator-(TsTime end, TsTime begin) {
    return TsTimeSpan(SaturatingArithmetic::subtract(end.seconds_, begin.seconds_));
  }

 private:
  std::int64_t seconds_ = 0;
};

}  // namespace Tessel
