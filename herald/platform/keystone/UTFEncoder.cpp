#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <algorithm>

namespace Tessel {

namespace {

constexpr const wchar_t* FILE_NAME = L"platform/keystone/UTFEncoder";
constexpr char32_t REPLACEMENT = 0xFFFD;
constexpr char32_t HIGHEST = 0x10FFFF;

bool isSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

struct Decoded {
  char32_t codePoint;
  std::size_t length;  // 0 when the bytes are no UTF-8
};

// One code point; surrogates count as code points here.
Decoded decodeOne(std::string_view bytes) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return {REPLACEMENT, 0};
  char32_t c = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return {REPLACEMENT, 0};
    c = c << 6 | (byte(i) & 0x3Fu);
  }
  const bool overlong = (length == 3 && c < 0x800) || (length == 4 && c < 0x10000);
  if (overlong || c > HIGHEST) return {REPLACEMENT, 0};
  return {c, length};
}

void appendUTF8(char32_t c, std::string& out) {
  const auto add = [&](char32_t bits) { out += static_cast<char>(bits); };
  if (c < 0x80) {
    add(c);
  } else if (c < 0x800) {
    add(0xC0 | c >> 6);
    add(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    add(0xE0 | c >> 12);
    add(0x80 | (c >> 6 & 0x3F));
    add(0x80 | (c & 0x3F));
  } else {
    add(0xF0 | c >> 18);
    add(0x80 | (c >> 12 & 0x3F));
    add(0x80 | (c >> 6 & 0x3F));
    add(0x80 | (c & 0x3F));
  }
}

void appendWide(char32_t c, std::wstring& out) {
  if constexpr (sizeof(wchar_t) == 2) {
    if (c >= 0x10000) {
      out += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
      out += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
      return;
    }
  }
  out += static_cast<wchar_t>(c);
}

// The code point at `i`, which moves behind it.
char32_t takeWide(std::wstring_view text, std::size_t& i) {
  const auto c = static_cast<char32_t>(text[i++]);
  if constexpr (sizeof(wchar_t) == 2) {
    const bool high = c >= 0xD800 && c < 0xDC00;
    if (high && i < text.size() && text[i] >= 0xDC00 && text[i] <= 0xDFFF)
      return 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(text[i++]) - 0xDC00);
  }
  return c > HIGHEST ? REPLACEMENT : c;
}

constexpr std::size_t WORD = sizeof(std::uint64_t);
constexpr std::uint64_t TOP_BITS = 0x8080808080808080u;

std::uint64_t wordAt(const char* bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, WORD);
  return word;
}

// A word at a time while none has its top bit set.
std::size_t asciiPrefix(std::string_view bytes) {
  std::size_t i = 0;
  for (; i + WORD <= bytes.size(); i += WORD) {
    if ((wordAt(bytes.data() + i) & TOP_BITS) != 0) return i;
  }
  while (i < bytes.size() && static_cast<unsigned char>(bytes[i]) < 0x80) ++i;
  return i;
}

}  // namespace

bool UTFEncoder::isAscii(std::string_view bytes) {
  if (bytes.size() < WORD) return asciiPrefix(bytes) == bytes.size();
  // The last word may overlap the one before it.
  std::uint64_t all = wordAt(bytes.data() + bytes.size() - WORD);
  for (std::size_t i = 0; i + WORD < bytes.size(); i += WORD) all |= wordAt(bytes.data() + i);
  return (all & TOP_BITS) == 0;
}

bool UTFEncoder::isValidBeyondAscii(std::string_view utf8) {
  for (utf8.remove_prefix(asciiPrefix(utf8)); !utf8.empty(); utf8.remove_prefix(asciiPrefix(utf8))) {
    const Decoded next = decodeOne(utf8);
    if (next.length == 0 || isSurrogate(next.codePoint)) return false;
    utf8.remove_prefix(next.length);
  }
  return true;
}

std::string UTFEncoder::toUTF8(std::wstring_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) appendUTF8(takeWide(text, i), utf8);
  return utf8;
}

std::wstring UTFEncoder::toWide(std::string_view utf8) {
  std::wstring text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    const Decoded next = decodeOne(utf8);
    appendWide(next.codePoint, text);
    utf8.remove_prefix(std::max<std::size_t>(next.length, 1));
  }
  return text;
}

void UTFEncoder::encodeToTsUTF8(std::wstring_view text, ByteStream& out) {
  encodeToTsUTF8(std::string_view(toUTF8(text)), out);
}

void UTFEncoder::encodeToTsUTF8(std::string_view utf8, ByteStream& out) {
  if (utf8.size() > MAX_ENCODED_LENGTH)
    throw KeystoneException(FILE_NAME, __LINE__,
                            L"The string is too long: " + std::to_wstring(utf8.size()) + L" bytes.");
  if (!isValid(utf8)) throw KeystoneException(FILE_NAME, __LINE__, L"The string is not valid Unicode.");
  out << static_cast<std::int16_t>(static_cast<std::uint16_t>(utf8.size()));
  out.append({reinterpret_cast<const std::uint8_t*>(utf8.data()), utf8.size()});
}

std::wstring UTFEncoder::decodeFromTsUTF8(ByteStream& in) {
  std::string utf8;
  decodeFromTsUTF8(in, utf8);
  return toWide(utf8);
}

void UTFEncoder::decodeFromTsUTF8(ByteStream& in, std::string& text) {
  const std::size_t left = in.unreadCount();
  std::int16_t count = 0;
  if (left >= sizeof(count)) in >> count;
  const std::size_t length = static_cast<std::uint16_t>(count);
  if (left < sizeof(count) || in.unreadCount() < length) {
    in.skip(in.unreadCount());
    throw KeystoneException(FILE_NAME, __LINE__, L"The string is cut short.");
  }
  const std::string_view bytes(reinterpret_cast<const char*>(in.unread().data()), length);
  in.skip(length);
  if (!isValid(bytes)) throw KeystoneException(FILE_NAME, __LINE__, L"The string is not valid UTF-8.");
  text.assign(bytes);
}

int UTFEncoder::getTsUTF8EncodedLength(std::wstring_view text) { return static_cast<int>(toUTF8(text).size()); }

}  // namespace Tessel
