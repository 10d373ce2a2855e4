#pragma once
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/UTFEncoder.h>
#include <herald/wire/Inlining.h>
#include <herald/wire/LayoutVisitor.h>
#include <herald/wire/Text.h>

#include <limits>

namespace Tessel {

/// Reports a list that is too long for its count, and a text that cannot be encoded.
HERALD_API void reportListTooLong(std::int64_t count);
HERALD_API void reportUnwritable(const Text& text);

/// Writes a layout into memory of the size that `WireSizer` tells for it, and `SLACK` bytes more. Once a field has
/// failed, which it has reported, nothing more is written.
class WireWriter : public LayoutVisitor<WireWriter> {
 public:
  /// A short text is copied with all the place that it has.
  static constexpr std::size_t SLACK = Text::MAX_SHORT + 1;

  explicit WireWriter(std::uint8_t* to) : to_(to) {}

  /// Whether every field so far could be written.
  bool succeeded() const { return succeeded_; }

 private:
  friend LayoutVisitor;

  template <class T>
  void field(std::string_view, const T& value) {
    if (!succeeded_) return;
    if constexpr (WireNumber<T>)
      number(value);
    else if constexpr (WireText<T>)
      text(value);
    else
      T::wire(value, *this);
  }

  template <WireNumber T>
  void number(T value) {
    if constexpr (std::same_as<T, bool>)
      *to_ = value ? 1 : 0;
    else
      BigEndian<std::make_unsigned_t<T>>::store(static_cast<std::make_unsigned_t<T>>(value), to_);
    to_ += sizeof(T);
  }

  HERALD_IN_LINE void text(const Text& value) {
    if (value.isShortAscii()) [[likely]] {
      number(static_cast<std::int16_t>(value.copyShort(to_ + sizeof(std::int16_t))));
      to_ += value.size() - sizeof(std::int16_t);
    } else {
      longText(value);
    }
  }
  template <WireText T>
  void text(const T& value) {
    longText(value);
  }

  template <WireText T>
  HERALD_OUT_OF_LINE void longText(const T& value) {
    const std::string_view utf8 = value.getUTF8();
    if (!UTFEncoder::copyEncodable(utf8, to_ + sizeof(std::uint16_t))) {
      if constexpr (std::same_as<T, Text>) {
        reportUnwritable(value);
      } else {
        ByteStream nowhere;
        static_cast<void>(value.write(nowhere));  // which tells its own reporter
      }
      succeeded_ = false;
      return;
    }
    number(static_cast<std::int16_t>(static_cast<std::uint16_t>(utf8.size())));
    to_ += utf8.size();
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

  bool enter(bool present) { return present; }
  void leave() {}

  std::uint8_t* to_;
  bool succeeded_ = true;
};

}  // namespace Tessel
