#include <herald/platform/keystone/Format.h>

namespace Tessel {

std::wstring formatArguments(const wchar_t* format, std::span<const FormatArgument> arguments) {
  std::wstring result;
  auto argument = arguments.begin();
  for (const wchar_t* c = format; *c != L'\0'; ++c) {
    if (*c != L'%') {
      result += *c;
      continue;
    }
    ++c;
    if (*c == L'l') ++c;
    if (*c == L's')
      result += argument->text();
    else
      result += std::to_wstring(argument->number());
    ++argument;
  }
  return result;
}

}  // namespace Tessel
