#pragma once
#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>

namespace Tessel {

/// What the compiler calls an enumerator, without what it stands in; empty for a value without one.
template <auto VALUE>
consteval std::string_view enumeratorName() {
#ifdef _MSC_VER
  std::string_view name = __FUNCSIG__;
  name = name.substr(0, name.rfind(">("));
#else
  std::string_view name = __PRETTY_FUNCTION__;
  name.remove_prefix(name.find("VALUE = ") + 8);
  name = name.substr(0, name.find_first_of(";]"));
#endif
  name.remove_prefix(name.find_last_of(":)<") + 1);
  const bool isName = !name.empty() && (name[0] < '0' || name[0] > '9') && name[0] != '-';
  return isName ? name : std::string_view();
}

/// The names of the values of an enumeration from `FIRST` on, as far as wire values have names.
template <class Enumeration>
class EnumeratorNames {
 public:
  static constexpr std::int64_t FIRST = -1;

  static constexpr std::span<const std::string_view> all() { return NAMES; }

  /// Empty for a value without a name.
  static constexpr std::string_view of(std::int64_t value) {
    const std::int64_t index = value - FIRST;
    return index >= 0 && index < COUNT ? NAMES[static_cast<std::size_t>(index)] : std::string_view();
  }

 private:
  static constexpr int COUNT = 32;

  template <std::size_t... INDEXES>
  static consteval std::array<std::string_view, COUNT> names(std::index_sequence<INDEXES...>) {
    return {enumeratorName<static_cast<Enumeration>(static_cast<std::int64_t>(INDEXES) + FIRST)>()...};
  }

  static constexpr std::array<std::string_view, COUNT> NAMES = names(std::make_index_sequence<COUNT>());
};

}  // namespace Tessel
