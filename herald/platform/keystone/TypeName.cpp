#include <herald/platform/keystone/TypeName.h>

#include <mutex>
#include <shared_mutex>
#include <string>
#include <string_view>
#include <unordered_map>

#ifndef _MSC_VER
#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#endif

namespace Tessel {

namespace {

std::string nameWithoutNamespace(const std::type_info& type) {
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

}  // namespace

std::string_view classNameOf(const std::type_info& type) {
  // Finding a name is slow, and a program asks for few. Never destroyed: objects that outlive main may still ask.
  static std::shared_mutex& lock = *new std::shared_mutex;
  static auto& names = *new std::unordered_map<const std::type_info*, std::string>;
  {
    const std::shared_lock guard(lock);
    if (const auto name = names.find(&type); name != names.end()) return name->second;
  }
  const std::lock_guard guard(lock);
  return names.try_emplace(&type, nameWithoutNamespace(type)).first->second;
}

}  // namespace Tessel
