#include <herald/platform/keystone/TypeName.h>

#include <string_view>

#ifndef _MSC_VER
#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#endif

namespace Tessel {

std::string classNameOf(const std::type_info& type) {
#ifdef _MSC_VER
  std::string_view name = type.name();
  for (const std::string_view keyword : {"class ", "struct "}) {
    if (name.starts_with(keyword)) name.remove_prefix(keyword.size());
  }
#else
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> demangled(
      abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), &std::free);
  std::string_view name = status == 0 ? demangled.get() : type.name();
#endif
  constexpr std::string_view SPACE = "Tessel::";
  if (name.starts_with(SPACE)) name.remove_prefix(SPACE.size());
  return std::string(name);
}

}  // namespace Tessel
