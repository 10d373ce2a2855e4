#pragma once
#include <herald/platform/keystone/Export.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace Tessel {

class MessageMemory;

/// A text field of a record or message: what a `TsString` holds, without its operations of a record. It is kept as it
/// came, as UTF-8, and becomes wide when asked. Up to 23 bytes need no memory beside the text's own 24; a longer text
/// owns its memory, or lies in memory of the message that was read.
class HERALD_API Text {
 public:
  Text() = default;
  Text(std::wstring_view text) { setString(text); }
  Text(const wchar_t* text) : Text(std::wstring_view(text)) {}
  Text(const Text& other) : Text() {
    if (other.isShort())
      bytes_ = other.bytes_;
    else
      assign(other.getUTF8());
  }
  Text(Text&& other) noexcept : bytes_(std::exchange(other.bytes_, {})) {}
  Text& operator=(const Text& other) {
    if (this != &other) Text(other).swap(*this);
    return *this;
  }
  Text& operator=(Text&& other) noexcept {
    swap(other);
    return *this;
  }
  ~Text() {
    if (kind() == OWNED) release();
  }

  void swap(Text& other) noexcept { std::swap(bytes_, other.bytes_); }

  std::wstring getString() const;
  /// A lone surrogate is kept, but cannot be written. What lies above U+10FFFF becomes U+FFFD.
  void setString(std::wstring_view text);

  /// Valid until the text is changed or destroyed.
  std::string_view getUTF8() const {
    return isShort() ? std::string_view(bytes_.data(), kind()) : std::string_view(longText().bytes, longText().size);
  }

  /// The number of bytes of the wire form.
  std::size_t size() const { return sizeof(std::uint16_t) + (isShort() ? kind() : longText().size); }

  bool operator==(const Text& other) const { return getUTF8() == other.getUTF8(); }

  // For those who read texts.

  static constexpr std::size_t MAX_SHORT = 23;

  /// Takes a text of up to `MAX_SHORT` bytes, provided that it is ASCII; otherwise answers false and stays as it was.
  /// As many bytes as a short text can have, and one more, must be there to be looked at.
  bool takeShortAscii(const std::uint8_t* from, std::size_t size) {
    Words words = wordsAt(from);
    const Words& own = MASKS[size];
    words.first &= own.first;
    words.second &= own.second;
    words.third &= own.third;
    if (words.hasTopBit()) return false;
    if (kind() == OWNED) release();
    std::memcpy(bytes_.data(), &words, sizeof(words));
    setKind(static_cast<std::uint8_t>(size));
    return true;
  }

  // For those who write texts.

  bool isShortAscii() const {
    // The last byte has its top bit set in a long text, and in none other.
    return !wordsAt(bytes_.data()).hasTopBit();
  }
  /// Copies a short text, and whatever is behind it in its 24 bytes, and answers the number of its bytes.
  std::size_t copyShort(std::uint8_t* to) const {
    std::memcpy(to, bytes_.data(), sizeof(bytes_));
    return kind();
  }

  /// Takes bytes that are valid UTF-8; into `memory` where it is not null and they are many. `bytesToCome` are behind
  /// them.
  void take(std::string_view utf8, MessageMemory* memory, std::size_t bytesToCome);

 private:
  using Bytes = std::array<char, 24>;

  // The 24 bytes as numbers of their own, which stay in registers.
  struct Words {
    std::uint64_t first;
    std::uint64_t second;
    std::uint64_t third;

    bool hasTopBit() const { return ((first | second | third) & 0x8080808080808080u) != 0; }
  };

  // The last byte: the number of bytes of a short text, or whose the memory of a long one is.
  static constexpr std::uint8_t OWNED = 0xFF;
  static constexpr std::uint8_t BORROWED = 0xFE;

  struct Long {
    char* bytes;
    std::uint32_t size;
  };

  // For a text of each size: which bits of its words are its own.
  static const std::array<Words, MAX_SHORT + 1> MASKS;

  template <class Byte>
  static Words wordsAt(const Byte* from) {
    Words words{};
    std::memcpy(&words.first, from, sizeof(words.first));
    std::memcpy(&words.second, from + sizeof(words.first), sizeof(words.second));
    std::memcpy(&words.third, from + 2 * sizeof(words.first), sizeof(words.third));
    return words;
  }

  std::uint8_t kind() const { return static_cast<std::uint8_t>(bytes_[MAX_SHORT]); }
  void setKind(std::uint8_t kind) { bytes_[MAX_SHORT] = static_cast<char>(kind); }
  bool isShort() const { return kind() <= MAX_SHORT; }
  Long longText() const {
    Long text{};
    std::memcpy(&text, bytes_.data(), sizeof(text));
    return text;
  }

  void assign(std::string_view utf8) { take(utf8, nullptr, 0); }
  void release() noexcept;

  Bytes bytes_{};
};

}  // namespace Tessel
