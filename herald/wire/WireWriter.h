#pragma once
#include <herald/platform/keystone/ByteStream.h>
#include <herald/wire/LayoutVisitor.h>

#include <limits>

namespace Tessel {

/// Reports a list that is too long for its count.
HERALD_API void reportListTooLong(std::int64_t count);

/// Appends a layout to a stream. Once a field has failed, which it has reported, nothing more is written.
class WireWriter : public LayoutVisitor<WireWriter> {
 public:
  explicit WireWriter(ByteStream& out) : out_(out) {}

  /// Whether every field so far could be written.
  bool succeeded() const { return succeeded_; }

 private:
  friend LayoutVisitor;

  template <class T>
  void field(std::string_view, const T& value) {
    if (!succeeded_) return;
    if constexpr (WireNumber<T>)
      out_ << value;
    else if constexpr (WireLayout<T>)
      T::wire(value, *this);
    else
      succeeded_ = value.write(out_);
  }

  template <class T>
  void secretText(std::string_view name, const T& text) {
    field(name, text);
  }

  template <class Count, class List>
  void list(std::string_view name, std::int64_t count, const List& list) {
    if (count > std::numeric_limits<Count>::max()) {
      reportListTooLong(count);
      succeeded_ = false;
      return;
    }
    field(name, static_cast<Count>(count));
    itemsOf(name, list);
  }

  template <class List>
  void itemsOf(std::string_view name, const List& list) {
    for (const auto& item : list) field<typename List::value_type>(name, item);
  }

  bool enter(bool present) { return present; }
  void leave() {}

  ByteStream& out_;
  bool succeeded_ = true;
};

}  // namespace Tessel
