#pragma once
#include <cstdint>
#include <limits>

/// Sums of 64-bit numbers that stop at the ends of the range, because amounts and times come from a server.
namespace Tessel::SaturatingArithmetic {

constexpr std::int64_t add(std::int64_t a, std::int64_t b) {
  using Limits = std::numeric_limits<std::int64_t>;
  if (b > 0 && a > Limits::max() - b) return Limits::max();
  if (b < 0 && a < Limits::min() - b) return Limits::min();
  return a + b;
}

constexpr std::int64_t subtract(std::int64_t a, std::int64_t b) {
  using Limits = std::numeric_limits<std::int64_t>;
  if (b < 0 && a > Limits::max() + b) return Limits::max();
  if (b > 0 && a < Limits::min() + b) return Limits::min();
  return a - b;
}

}  // namespace Tessel::SaturatingArithmetic
