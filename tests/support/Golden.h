#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tessel {

/// A body and what comes of it. tests/messages/golden/README.md tells how the cases are written.
struct GoldenCase {
  std::string where{};      ///< The file and the line.
  std::string name{};       ///< The class.
  std::optional<int> id{};  ///< Of a message; a record has none.
  std::vector<std::uint8_t> bytes{};
  std::optional<std::string> values{};
  std::optional<std::string> text{};
  std::optional<std::string> told{};
  bool result = true;
  std::optional<std::string> throws{};
  std::optional<std::vector<std::uint8_t>> again{};
  std::size_t left = 0;
  std::size_t reports = 0;

  /// The bytes that the values make.
  const std::vector<std::uint8_t>& encoded() const { return again ? *again : bytes; }
};

/// All cases of all files. Throws `std::runtime_error` for one that says nothing or what it must not.
const std::vector<GoldenCase>& goldenCases();

/// The frames that requests write, in the order of their file.
const std::vector<GoldenCase>& requestCases();

/// The first case of the class, which has every field; throws `std::out_of_range` when there is none.
const GoldenCase& goldenCase(std::string_view name);

}  // namespace Tessel
