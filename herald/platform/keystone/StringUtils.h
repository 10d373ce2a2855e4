#pragma once
#include <herald/platform/keystone/Export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace Tessel::StringUtils {

HERALD_API std::wstring intToString(int value);
HERALD_API std::wstring int64ToString(std::int64_t value);

/// The text with backslash, tab, carriage return and line feed written as \\ \t \r \n, so that it stays one line.
HERALD_API std::wstring escapeLine(std::wstring_view text);

}  // namespace Tessel::StringUtils
