#include <herald/platform/keystone/TypeName.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>
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

// Finding a name is slow, and a program asks for few. Never destroyed: objects that outlive main may still ask.
using Names = std::unordered_map<const std::type_info*, std::string>;

const Names::value_type& remembered(const std::type_info& type) {
  static std::mutex& lock = *new std::mutex;
  static Names& names = *new Names;
  const std::lock_guard guard(lock);
  const auto name = names.find(&type);
  return name != names.end() ? *name : *names.try_emplace(&type, nameWithoutNamespace(type)).first;
}

}  // namespace

std::string_view classNameOf(const std::type_info& type) {
  // What was asked for last, by the address of the class.
  static constinit std::array<std::atomic<const Names::value_type*>, 256> recent{};
  constexpr std::size_t USUAL_SIZE = 16;
  auto& slot = recent[reinterpret_cast<std::uintptr_t>(&type) / USUAL_SIZE % recent.size()];
  const Names::value_type* name = slot.load(std::memory_order_acquire);
  if (name == nullptr || name->first != &type) {
    name = &remembered(type);
    slot.store(name, std::memory_order_release);
  }
  return name->second;
}

}  // namespace Tessel
