#pragma once
#include <herald/platform/keystone/ByteStream.h>

#include <string>
#include <string_view>

namespace Tessel {

/// Strings on the wire: an unsigned 16-bit count of bytes, then that many bytes of strict UTF-8 (no overlong forms, no
/// surrogates, nothing above U+10FFFF). `wchar_t` holds a code point where it has 32 bits and a UTF-16 unit where it
/// has 16; both meet the same bytes.
class HERALD_API UTFEncoder {
 public:
  /// The longest string that can be encoded, in bytes of UTF-8.
  static constexpr std::size_t MAX_ENCODED_LENGTH = 65535;

  /// Appends the wire form. Throws `KeystoneException`, and appends nothing, for a text that is too long or holds a
  /// lone surrogate.
  static void encodeToTsUTF8(std::wstring_view text, ByteStream& out);
  /// The same for text that is UTF-8 already.
  static void encodeToTsUTF8(std::string_view utf8, ByteStream& out);

  /// Consumes a string and answers it. Throws `KeystoneException` when it is not valid UTF-8 (the whole string is
  /// consumed, so that the stream stays in step) or is cut short (all that is left is consumed).
  static std::wstring decodeFromTsUTF8(ByteStream& in);
  /// The same, as UTF-8, into `text`, which keeps its value when this throws.
  static void decodeFromTsUTF8(ByteStream& in, std::string& text);

  /// The count of UTF-8 bytes, without the two of the count that travels before them.
  static int getTsUTF8EncodedLength(std::wstring_view text);

  static bool isValid(std::string_view utf8) { return isAscii(utf8) || isValidBeyondAscii(utf8); }
  /// Whether a text can travel: it is valid, and not too long.
  static bool isEncodable(std::string_view utf8) { return utf8.size() <= MAX_ENCODED_LENGTH && isValid(utf8); }

  /// Copies the bytes, and answers whether they are valid and not too many to travel.
  static bool copyEncodable(std::string_view utf8, std::uint8_t* to) {
    constexpr std::size_t WORD = sizeof(std::uint64_t);
    if (utf8.size() < WORD || utf8.size() > MAX_ENCODED_LENGTH) {
      utf8.copy(reinterpret_cast<char*>(to), utf8.size());
      return isEncodable(utf8);
    }
    const auto copyWord = [&](std::size_t i) {
      std::uint64_t word;
      std::memcpy(&word, utf8.data() + i, WORD);
      std::memcpy(to + i, &word, WORD);
      return word;
    };
    // The last word may overlap the one before it.
    std::uint64_t all = copyWord(utf8.size() - WORD);
    for (std::size_t i = 0; i + WORD < utf8.size(); i += WORD) all |= copyWord(i);
    return (all & 0x8080808080808080u) == 0 || isValidBeyondAscii(utf8);
  }

  /// A lone surrogate becomes the three bytes that UTF-8 would give its number: `toWide` gives it back, `isValid` and
  /// the encoder refuse it.
  static std::string toUTF8(std::wstring_view text);
  /// Bytes that are not UTF-8 become U+FFFD.
  static std::wstring toWide(std::string_view utf8);

 private:
  static bool isAscii(std::string_view bytes);
  static bool isValidBeyondAscii(std::string_view utf8);
};

}  // namespace Tessel
