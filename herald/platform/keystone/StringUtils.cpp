#include <herald/platform/keystone/StringUtils.h>

#include <algorithm>
#include <utility>

namespace Tessel::StringUtils {

namespace {

// First and last.
constexpr std::pair<wchar_t, wchar_t> UNSAFE[] = {{0x00, 0x1F},     {0x7F, 0x9F},     {0x061C, 0x061C},
                                                  {0x200E, 0x200F}, {0x202A, 0x202E}, {0x2066, 0x2069}};

bool isUnsafe(wchar_t c) {
  return std::ranges::any_of(UNSAFE, [c](const auto& range) { return range.first <= c && c <= range.second; });
}

std::wstring escaped(wchar_t c) {
  constexpr std::wstring_view DIGITS = L"0123456789abcdef";
  std::wstring text = L"\\u";
  for (int shift = 12; shift >= 0; shift -= 4) text += DIGITS[static_cast<std::size_t>(c >> shift) & 0xF];
  return text;
}

}  // namespace

std::wstring intToString(int value) { return std::to_wstring(value); }

std::wstring int64ToString(std::int64_t value) { return std::to_wstring(value); }

std::wstring escapeLine(std::wstring_view text) {
  std::wstring line;
  line.reserve(text.size());
  for (const wchar_t c : text) {
    switch (c) {
      case L'\\':
        line += L"\\\\";
        break;
      case L'\t':
        line += L"\\t";
        break;
      case L'\r':
        line += L"\\r";
        break;
      case L'\n':
        line += L"\\n";
        break;
      default:
        if (isUnsafe(c))
          line += escaped(c);
        else
          line += c;
    }
  }
  return line;
}

}  // namespace Tessel::StringUtils
