#pragma once
#include <cstdint>
#include <string_view>

namespace Tessel {

/// When a field travels: an earlier number of the same layout, seen through a mask, lies in a range. A layout says it
/// this way, rather than as a bare bool, so that what prints layouts knows the rule.
struct Condition {
  /// A condition that is not on one number; it cannot be told.
  constexpr Condition(bool holds) : value(holds ? 1 : 0) {}
  constexpr Condition(std::string_view onField, std::int64_t ofValue, std::int64_t withMask, std::int64_t from,
                      std::int64_t to)
      : field(onField), value(ofValue), mask(withMask), first(from), last(to) {}

  constexpr bool holdsFor(std::int64_t number) const { return (number & mask) >= first && (number & mask) <= last; }
  constexpr operator bool() const { return holdsFor(value); }

  /// The name of the earlier field; empty when there is none.
  std::string_view field;
  /// The value of that field.
  std::int64_t value;
  std::int64_t mask = 1;
  std::int64_t first = 1;
  std::int64_t last = 1;
};

constexpr Condition isTrue(std::string_view field, bool value) { return {field, value ? 1 : 0, 1, 1, 1}; }

constexpr Condition equals(std::string_view field, std::int64_t value, std::int64_t expected) {
  return {field, value, -1, expected, expected};
}

/// Both ends belong to the range.
constexpr Condition isBetween(std::string_view field, std::int64_t value, std::int64_t first, std::int64_t last) {
  return {field, value, -1, first, last};
}

/// Bit n has the value 2 to the power n; n is from 0 to 62.
constexpr Condition hasBit(std::string_view field, std::int64_t value, int bit) {
  const std::int64_t mask = std::int64_t{1} << bit;
  return {field, value, mask, mask, mask};
}

/// How many items a list without a count of its own has: as many as an earlier number of the same layout says, or as
/// an earlier list has. None when that is negative.
struct CountFrom {
  constexpr CountFrom(std::string_view givenBy, std::int32_t items) : field(givenBy), count(items) {}
  constexpr operator std::int32_t() const { return count; }

  std::string_view field;
  std::int32_t count;
};

}  // namespace Tessel
