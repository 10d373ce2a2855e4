#pragma once
#include <herald/wire/LayoutVisitor.h>

#include <cstddef>

namespace Tessel {

/// Counts the bytes of a layout.
class WireSizer : public LayoutVisitor<WireSizer> {
 public:
  /// Whether to count what travels only under a condition, where that holds.
  explicit WireSizer(bool countsConditional = true) : countsConditional_(countsConditional) {}

  std::size_t size() const { return size_; }

 private:
  friend LayoutVisitor;

  template <class T>
  void field(std::string_view, const T& value) {
    if constexpr (WireNumber<T>)
      size_ += sizeof(T);
    else if constexpr (WireLayout<T>)
      T::wire(value, *this);
    else
      size_ += static_cast<std::size_t>(value.T::size());
  }

  template <class T>
  void secretText(std::string_view name, const T& text) {
    field(name, text);
  }

  template <class Count, class List>
  void list(std::string_view name, std::int64_t, const List& list) {
    size_ += sizeof(Count);
    allOf(name, list);
  }

  template <class List>
  void itemsOf(std::string_view name, const List& list, const CountFrom&) {
    allOf(name, list);
  }

  template <class List>
  void allOf(std::string_view name, const List& list) {
    for (const auto& item : list) field<typename List::value_type>(name, item);
  }

  bool enter(bool present) const { return present && countsConditional_; }
  void leave() {}

  bool countsConditional_;
  std::size_t size_ = 0;
};

/// The fewest bytes that a T can take: those of a default T, whose texts and lists are empty, without its conditional
/// fields.
template <class T>
std::size_t minimumWireSize() {
  if constexpr (WireNumber<T>) {
    return sizeof(T);
  } else {
    static const std::size_t minimum = [] {
      WireSizer sizer(false);
      sizer("", T());
      return sizer.size();
    }();
    return minimum;
  }
}

}  // namespace Tessel
