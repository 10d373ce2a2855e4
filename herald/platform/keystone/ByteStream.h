#pragma once
#include <herald/platform/keystone/Export.h>

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>
#include <utility>

namespace Tessel {

/// A number as it travels: high byte first.
template <std::unsigned_integral T>
class BigEndian {
 public:
  static T load(const std::uint8_t* from) {
    T value;
    std::memcpy(&value, from, sizeof(T));
    return toOrFromBigEndian(value);
  }
  static void store(T value, std::uint8_t* to) {
    value = toOrFromBigEndian(value);
    std::memcpy(to, &value, sizeof(T));
  }

 private:
  static T toOrFromBigEndian(T value) {
    if constexpr (std::endian::native == std::endian::big)
      return value;
    else
      return swapped(value, std::make_index_sequence<sizeof(T)>());
  }

  // Without a loop, so that compilers see the one instruction that does it.
  template <std::size_t... BYTES>
  static T swapped(T value, std::index_sequence<BYTES...>) {
    return static_cast<T>((... | ((value >> 8 * BYTES & 0xFF) << 8 * (sizeof(T) - 1 - BYTES))));
  }
};

/// A growable byte array with a read position: `<<` appends at its end, `>>` consumes from the read position. Numbers
/// travel high byte first, in exactly their width; a bool is one byte, non-zero for true.
class HERALD_API ByteStream {
 public:
  ByteStream() = default;
  /// Copies the bytes; the read position stands at the first.
  explicit ByteStream(std::span<const std::uint8_t> bytes) { append(bytes); }
  ByteStream(const ByteStream& other);
  ByteStream(ByteStream&& other) noexcept { swap(other); }
  ByteStream& operator=(const ByteStream& other) { return *this = ByteStream(other); }
  ByteStream& operator=(ByteStream&& other) noexcept {
    ByteStream(std::move(other)).swap(*this);
    return *this;
  }
  ~ByteStream() = default;

  /// A stream over the caller's bytes, which it does not copy: they must stay where they are, unchanged, until the
  /// stream is destroyed, cleared or written to. Writing into it copies them first, and so does copying the stream.
  static ByteStream view(std::span<const std::uint8_t> bytes) {
    ByteStream stream;
    stream.begin_ = bytes.data();
    stream.size_ = bytes.size();
    return stream;
  }

  void swap(ByteStream& other) noexcept {
    std::swap(own_, other.own_);
    std::swap(begin_, other.begin_);
    std::swap(size_, other.size_);
    std::swap(position_, other.position_);
    std::swap(room_, other.room_);
  }

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
  int GetSize() const { return static_cast<int>(size_); }
  /// Overwrites the byte at an index from 0 to `GetSize()` - 1; another index throws `OutOfBoundsException`.
  void SetAt(int index, char value) {
    if (index < 0 || index >= GetSize()) [[unlikely]]
      throwNoSuchIndex(index);
    if (isView()) grow(0);
    own_[static_cast<std::size_t>(index)] = static_cast<std::uint8_t>(value);
  }
  /// True when no unread byte is left.
  bool eos() const { return position_ == size_; }

  /// All bytes held, and those not read yet. Both are valid until the stream is changed.
  std::span<const std::uint8_t> bytes() const { return {begin_, size_}; }
  std::span<const std::uint8_t> unread() const { return {begin_ + position_, unreadCount()}; }
  std::size_t unreadCount() const { return size_ - position_; }

  /// The read position, from 0 to the number of bytes held.
  std::size_t position() const { return position_; }
  /// Moves it; a position behind the end throws `KeystoneException`.
  void seek(std::size_t position) {
    if (position > size_) [[unlikely]]
      throwPastEnd(position - position_);
    position_ = position;
  }

  /// Appends the bytes, which are not this stream's, as they are.
  void append(std::span<const std::uint8_t> bytes) {
    if (bytes.empty()) return;
    std::memcpy(prepare(bytes.size()), bytes.data(), bytes.size());
    commit(bytes.size());
  }
  /// Room for that many bytes behind the last one, for the caller to fill in. It is valid until the stream is changed.
  std::uint8_t* prepare(std::size_t count) {
    if (room_ < count) [[unlikely]]
      grow(count);
    return own_.get() + size_;
  }
  /// Appends the first `count` bytes of the room that was prepared, which holds as many.
  void commit(std::size_t count) {
    room_ -= count;
    size_ += count;
  }
  /// Consumes that many bytes; throws `KeystoneException`, and consumes nothing, when fewer are left.
  void skip(std::size_t count) {
    if (count > unreadCount()) [[unlikely]]
      throwPastEnd(count);
    position_ += count;
  }
  /// Drops all bytes behind the first `size`; a larger size changes nothing.
  void truncate(std::size_t size) {
    if (size >= size_) return;
    if (!isView()) room_ += size_ - size;
    size_ = size;
    if (position_ > size) position_ = size;
  }
  /// Empties the stream and keeps its memory for the next use.
  void clear() {
    if (isView()) *this = ByteStream();
    truncate(0);
  }

 private:
  template <std::unsigned_integral T>
  ByteStream& put(T value) {
    BigEndian<T>::store(value, prepare(sizeof(T)));
    commit(sizeof(T));
    return *this;
  }

  template <std::unsigned_integral T>
  T get() {
    if (unreadCount() < sizeof(T)) [[unlikely]]
      throwPastEnd(sizeof(T));
    return BigEndian<T>::load(begin_ + std::exchange(position_, position_ + sizeof(T)));
  }

  bool isView() const { return begin_ != own_.get(); }
  /// Makes room for that many more bytes in memory of the stream's own.
  void grow(std::size_t count);
  [[noreturn]] void throwPastEnd(std::size_t count) const;
  [[noreturn]] void throwNoSuchIndex(int index) const;

  std::unique_ptr<std::uint8_t[]> own_;
  const std::uint8_t* begin_ = nullptr;  // in own_, or the caller's
  std::size_t size_ = 0;
  std::size_t position_ = 0;
  std::size_t room_ = 0;  // in own_, behind the bytes; none in a view
};

}  // namespace Tessel
