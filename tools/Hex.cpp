#include "Hex.h"

#include <charconv>
#include <string>

namespace Tessel {

std::vector<std::uint8_t> parseHex(std::string_view text) {
  constexpr std::string_view BLANKS = " \t\r\n";
  constexpr std::string_view DIGITS = "0123456789abcdefABCDEF";
  std::vector<std::uint8_t> bytes;
  for (std::size_t at = text.find_first_not_of(BLANKS); at < text.size(); at = text.find_first_not_of(BLANKS, at + 2)) {
    const std::string_view pair = text.substr(at, 2);
    if (pair.size() < 2 || pair.find_first_not_of(DIGITS) != std::string_view::npos) {
      throw UsageError("hex: \"" + std::string(pair) + "\" at character " + std::to_string(at + 1)
                       + " is no pair of hexadecimal digits");
    }
    std::from_chars(pair.data(), pair.data() + 2, bytes.emplace_back(), 16);
  }
  return bytes;
}

std::string toHex(std::span<const std::uint8_t> bytes) {
  constexpr std::string_view DIGITS = "0123456789abcdef";
  std::string text;
  text.reserve(2 * bytes.size());
  for (const std::uint8_t byte : bytes) {
    text += DIGITS[byte >> 4];
    text += DIGITS[byte & 0xF];
  }
  return text;
}

}  // namespace Tessel
