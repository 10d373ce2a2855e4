#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <concepts>
#include <iterator>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace CardRoom {

/// The body of a server's message, composed field by field in wire order. A number that does not fit its field throws.
class Body {
 public:
  template <class T>
  Body& i8(T value) {
    return number<std::int8_t>(value);
  }
  template <class T>
  Body& i16(T value) {
    return number<std::int16_t>(value);
  }
  template <class T>
  Body& i32(T value) {
    return number<std::int32_t>(value);
  }
  Body& i64(std::int64_t value) { return number<std::int64_t>(value); }
  Body& flag(bool value) { return bytes_ << value, *this; }
  Body& text(std::wstring_view value) { return Tessel::UTFEncoder::encodeToTsUTF8(value, bytes_), *this; }
  Body& money(const Tessel::Money& value) { return record(Tessel::MoneyInfo(value)); }

  /// A record that the library can write.
  Body& record(const Tessel::StreamWritableObject& value) {
    if (!value.write(bytes_)) throw std::invalid_argument("a record that cannot be written");
    return *this;
  }

  /// The fields of another body.
  Body& fields(const Body& other) { return bytes_.append(other.bytes()), *this; }

  /// A count of the width `Count`, then what `write(body, item)` adds for each item.
  template <class Count, class Items, class Write>
  Body& list(const Items& items, Write write) {
    number<Count>(std::size(items));
    for (const auto& item : items) write(*this, item);
    return *this;
  }

  template <class Count>
  Body& list(const std::vector<Body>& items) {
    return list<Count>(items, [](Body& body, const Body& item) { body.fields(item); });
  }
  /// The same with numbers of the width `Item`.
  template <class Count, class Item, class Items>
  Body& list(const Items& items) {
    return list<Count>(items, [](Body& body, auto item) { body.number<Item>(item); });
  }

  std::span<const std::uint8_t> bytes() const { return bytes_.bytes(); }

 private:
  template <class Field, std::integral T>
  Body& number(T value) {
    if (!std::in_range<Field>(value)) throw std::out_of_range("a number that does not fit its field");
    return bytes_ << static_cast<Field>(value), *this;
  }

  template <class Field, class T>
  requires std::is_enum_v<T> Body& number(T value) { return number<Field>(static_cast<int>(value)); }

  Tessel::ByteStream bytes_;
};

}  // namespace CardRoom
