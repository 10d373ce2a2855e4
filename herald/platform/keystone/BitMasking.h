#pragma once
#include <concepts>
#include <limits>
#include <type_traits>

/// Single bits of a mask: bit n has the value 2 to the power n, n from 0; the sign bit is a bit like the others. A bit
/// that the mask is too narrow for reads as false and cannot be set.
namespace Tessel::BitMasking {

template <std::integral Mask>
constexpr bool hasBit(int bit) {
  return bit >= 0 && bit < std::numeric_limits<std::make_unsigned_t<Mask>>::digits;
}

template <std::integral Mask>
constexpr bool getBit(Mask mask, int bit) {
  return hasBit<Mask>(bit) && ((static_cast<std::make_unsigned_t<Mask>>(mask) >> bit) & 1u) != 0;
}

template <std::integral Mask>
constexpr void setBit(Mask& mask, int bit) {
  if (!hasBit<Mask>(bit)) return;
  using Bits = std::make_unsigned_t<Mask>;
  mask = static_cast<Mask>(static_cast<Bits>(mask) | static_cast<Bits>(Bits{1} << bit));
}

}  // namespace Tessel::BitMasking
