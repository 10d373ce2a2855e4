#pragma once
#include <herald/platform/keystone/Export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace Tessel::StringUtils {

HERALD_API std::wstring intToString(int value);
HERALD_API std::wstring int64ToString(std::int64_t value);

/// The text with backslash, tab, carriage return and line feed written as \\ \t \r \n, so that it stays one line, and
/// with what would drive a terminal or turn the direction of writing (other control characters, bidirectional marks,
/// embeddings, overrides and isolates) as \u and four hexadecimal digits.
HERALD_API std::wstring escapeLine(std::wstring_view text);

}  // namespace Tessel::StringUtils
