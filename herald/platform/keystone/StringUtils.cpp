#include <herald/platform/keystone/StringUtils.h>

namespace Tessel::StringUtils {

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
        line += c;
    }
  }
  return line;
}

}  // namespace Tessel::StringUtils
