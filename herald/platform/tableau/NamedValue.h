#pragma once
#include <string_view>

namespace Tessel {

/// One value of an enumeration of the poker domain, with its English name. Those that the factories hand out are shared
/// constants that live as long as the process: the same value always gives the same object.
template <class Enumeration>
class NamedValue {
 public:
  using Value = Enumeration;

  constexpr NamedValue(Value value, std::wstring_view name) : value_(value), name_(name) {}

  constexpr Value getValue() const { return value_; }
  /// Lives as long as the process.
  constexpr std::wstring_view getName() const { return name_; }

  constexpr bool operator==(const NamedValue& other) const { return value_ == other.value_; }

 private:
  Value value_;
  std::wstring_view name_;
};

}  // namespace Tessel
