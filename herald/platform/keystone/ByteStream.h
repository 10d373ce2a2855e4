#pragma once
#include <herald/platform/keystone/Export.h>

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <utility>
#include <vector>

namespace Tessel {

/// A growable byte array with a read position: `<<` appends at its end, `>>` consumes from the read position. Numbers
/// travel high byte first, in exactly their width; a bool is one byte, non-zero for true.
class HERALD_API ByteStream {
 public:
  ByteStream() = default;
  /// Copies the bytes; the read position stands at the first.
  explicit ByteStream(std::span<const std::uint8_t> bytes) : bytes_(bytes.begin(), bytes.end()) {}

  ByteStream& operator<<(char value) { return put(static_cast<std::uint8_t>(value)); }
  ByteStream& operator<<(std::int8_t value) { return put(static_cast<std::uint8_t>(value)); }
  ByteStream& operator<<(bool value) { return put(static_cast<std::uint8_t>(value)); }
  ByteStream& operator<<(std::int16_t value) { return put(static_cast<std::uint16_t>(value)); }
  ByteStream& operator<<(std::int32_t value) { return put(static_cast<std::uint32_t>(value)); }
  ByteStream& operator<<(std::int64_t value) { return put(static_cast<std::uint64_t>(value)); }
  // No other type is appended silently in a width that the caller did not name.
  template <class T>
  ByteStream& operator<<(T value) = delete;

  /// Each throws `KeystoneException`, and consumes nothing, when too few unread bytes are left.
  ByteStream& operator>>(char& value) { return value = static_cast<char>(get<std::uint8_t>()), *this; }
  ByteStream& operator>>(std::int8_t& value) { return value = static_cast<std::int8_t>(get<std::uint8_t>()), *this; }
  ByteStream& operator>>(bool& value) { return value = get<std::uint8_t>() != 0, *this; }
  ByteStream& operator>>(std::int16_t& value) { return value = static_cast<std::int16_t>(get<std::uint16_t>()), *this; }
  ByteStream& operator>>(std::int32_t& value) { return value = static_cast<std::int32_t>(get<std::uint32_t>()), *this; }
  ByteStream& operator>>(std::int64_t& value) { return value = static_cast<std::int64_t>(get<std::uint64_t>()), *this; }

  /// The number of bytes held, read or not.
  int GetSize() const { return static_cast<int>(bytes_.size()); }
  /// Overwrites the byte at an index from 0 to `GetSize()` - 1; another index throws `OutOfBoundsException`.
  void SetAt(int index, char value);
  /// True when no unread byte is left.
  bool eos() const { return position_ == bytes_.size(); }

  /// All bytes held, and those not read yet. Both are valid until the stream is changed.
  std::span<const std::uint8_t> bytes() const { return bytes_; }
  std::span<const std::uint8_t> unread() const { return std::span(bytes_).subspan(position_); }
  std::size_t unreadCount() const { return bytes_.size() - position_; }

  /// Appends the bytes as they are.
  void append(std::span<const std::uint8_t> bytes) { bytes_.insert(bytes_.end(), bytes.begin(), bytes.end()); }
  /// Consumes that many bytes; throws `KeystoneException`, and consumes nothing, when fewer are left.
  void skip(std::size_t count) {
    if (count > unreadCount()) [[unlikely]]
      throwPastEnd(count);
    position_ += count;
  }
  /// Drops all bytes behind the first `size`; a larger size changes nothing.
  void truncate(std::size_t size);
  /// Empties the stream and keeps its memory for the next use.
  void clear() {
    bytes_.clear();
    position_ = 0;
  }

 private:
  template <std::unsigned_integral T>
  static T bigEndian(T value) {
    if constexpr (std::endian::native == std::endian::big)
      return value;
    else
      return swapped(value, std::make_index_sequence<sizeof(T)>());
  }

  // Without a loop, so that compilers see the one instruction that does it.
  template <std::unsigned_integral T, std::size_t... BYTES>
  static T swapped(T value, std::index_sequence<BYTES...>) {
    return static_cast<T>((... | ((value >> 8 * BYTES & 0xFF) << 8 * (sizeof(T) - 1 - BYTES))));
  }

  template <std::unsigned_integral T>
  ByteStream& put(T value) {
    value = bigEndian(value);
    const std::size_t end = bytes_.size();
    bytes_.resize(end + sizeof(T));
    std::memcpy(bytes_.data() + end, &value, sizeof(T));
    return *this;
  }

  template <std::unsigned_integral T>
  T get() {
    if (unreadCount() < sizeof(T)) [[unlikely]]
      throwPastEnd(sizeof(T));
    T value;
    std::memcpy(&value, bytes_.data() + position_, sizeof(T));
    position_ += sizeof(T);
    return bigEndian(value);
  }

  [[noreturn]] void throwPastEnd(std::size_t count) const;

  std::vector<std::uint8_t> bytes_;
  std::size_t position_ = 0;
};

}  // namespace Tessel
