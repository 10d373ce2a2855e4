#pragma once
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Tessel {

/// A command line that asks for something that cannot be done.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The bytes of pairs of hexadecimal digits, with or without blanks between the pairs. Throws `UsageError` for anything
/// else.
std::vector<std::uint8_t> parseHex(std::string_view text);

/// Pairs of hexadecimal digits in lower case, without blanks.
std::string toHex(std::span<const std::uint8_t> bytes);

}  // namespace Tessel
