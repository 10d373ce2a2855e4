#pragma once
#include <cstddef>
#include <iterator>

// The factories' tables. A table is a constexpr array of constants that begins with the one of value -1, which stands
// for what is unknown, and goes on with 0, 1, 2, ...

namespace Tessel::Constants {

template <class Type, std::size_t N>
consteval bool isInOrder(const Type (&table)[N]) {
  for (std::size_t i = 0; i < N; ++i)
    if (static_cast<int>(table[i].getValue()) != static_cast<int>(i) - 1) return false;
  return true;
}

template <class Type, std::size_t N>
consteval int highest(const Type (&)[N]) {
  return static_cast<int>(N) - 2;
}

/// The constant of a value, or null where the table has none.
template <const auto& TABLE, class Value>
auto find(Value value) -> decltype(std::data(TABLE)) {
  static_assert(isInOrder(TABLE));
  const int number = static_cast<int>(value);
  if (number < -1 || number > highest(TABLE)) return nullptr;
  return &TABLE[number + 1];
}

/// The constant of a value; the one of -1 where the table has none.
template <const auto& TABLE, class Value>
const auto& get(Value value) {
  const auto* constant = find<TABLE>(value);
  return constant ? *constant : TABLE[0];
}

}  // namespace Tessel::Constants
