#include <herald/inspect/Json.h>
#include <herald/platform/keystone/UTFEncoder.h>
#include <herald/wire/FieldSink.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <limits>
#include <utility>

namespace Tessel {

namespace {

// Deep data would otherwise cost the square of its depth.
constexpr std::size_t DEEPEST_INDENT = 16;

// The characters that stand for themselves in a string, whatever comes before and behind them: the printable ones of
// ASCII but quotation mark and backslash.

bool isPlain(char c) { return c >= 0x20 && c < 0x7F && c != '"' && c != '\\'; }

using Word = std::uint64_t;

// The same of eight characters at once: the top bit of a byte is set where the character is none of them.
bool isPlain(Word word) {
  constexpr Word ONES = 0x0101010101010101;
  const Word belowSpace = word - ONES * ' ';
  const Word quotationMark = (word ^ ONES * '"') - ONES;
  const Word backslash = (word ^ ONES * '\\') - ONES;
  const Word deleteOrBeyond = (word + ONES) | word;
  return ((belowSpace | quotationMark | backslash | deleteOrBeyond) & ONES * 0x80) == 0;
}

template <class T>
T loadAt(const char* from) {
  T value;
  std::memcpy(&value, from, sizeof(value));
  return value;
}

template <class T>
T copyAt(const char* from, char* to) {
  const T value = loadAt<T>(from);
  std::memcpy(to, &value, sizeof(value));
  return value;
}

// Copies the text and answers whether all of it is plain. The last word may overlap the one before it.
bool copyPlain(std::string_view utf8, char* to) {
  const std::size_t size = utf8.size();
  const char* const from = utf8.data();
  if (size >= sizeof(Word)) {
    bool allPlain = isPlain(copyAt<Word>(from + size - sizeof(Word), to + size - sizeof(Word)));
    for (std::size_t i = 0; i + sizeof(Word) < size; i += sizeof(Word))
      allPlain = isPlain(copyAt<Word>(from + i, to + i)) && allPlain;
    return allPlain;
  }
  using Half = std::uint32_t;
  if (size >= sizeof(Half)) {
    const Word first = copyAt<Half>(from, to);
    return isPlain(first << 32 | copyAt<Half>(from + size - sizeof(Half), to + size - sizeof(Half)));
  }
  bool allPlain = true;
  for (std::size_t i = 0; i < size; ++i) allPlain = isPlain(to[i] = from[i]) && allPlain;
  return allPlain;
}

std::size_t plainPrefix(std::string_view utf8) {
  std::size_t i = 0;
  while (i + sizeof(Word) <= utf8.size() && isPlain(loadAt<Word>(utf8.data() + i))) i += sizeof(Word);
  while (i < utf8.size() && isPlain(utf8[i])) ++i;
  return i;
}

// Characters that nobody sees, but that change what a terminal shows: controls, and what turns the direction of
// writing.
bool isUnseen(char32_t character) {
  constexpr std::pair<char32_t, char32_t> RANGES[] = {{0x00, 0x1F},     {0x7F, 0x9F},     {0x61C, 0x61C},
                                                      {0x200E, 0x200F}, {0x202A, 0x202E}, {0x2066, 0x2069}};
  return std::ranges::any_of(RANGES,
                             [&](const auto& range) { return character >= range.first && character <= range.second; });
}

// The character that valid UTF-8 begins with, and the number of its bytes.
std::pair<char32_t, std::size_t> firstCharacter(std::string_view utf8) {
  const auto lead = static_cast<unsigned char>(utf8[0]);
  if (lead < 0x80) return {lead, 1};
  const std::size_t size = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  char32_t character = lead & (0xFFu >> (size + 1));
  for (std::size_t i = 1; i < size; ++i) character = character << 6 | (utf8[i] & 0x3F);
  return {character, size};
}

void appendEscape(char32_t character, std::string& out) {
  constexpr std::string_view DIGITS = "0123456789abcdef";
  constexpr std::pair<char32_t, char> SHORT_FORMS[] = {{'"', '"'}, {'\\', '\\'}, {'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}};
  out += '\\';
  const auto* const shortForm = std::ranges::find(SHORT_FORMS, character, &std::pair<char32_t, char>::first);
  if (shortForm != std::end(SHORT_FORMS)) {
    out += shortForm->second;
    return;
  }
  out += 'u';
  for (int shift = 12; shift >= 0; shift -= 4) out += DIGITS[character >> shift & 0xF];
}

// The way through wide text replaces what is no UTF-8 but a lone surrogate, which stands in ED A0 80 to ED BF BF.
std::string repaired(std::string_view utf8) {
  std::string text = UTFEncoder::toUTF8(UTFEncoder::toWide(utf8));
  for (std::size_t at = text.find('\xED'); at != std::string::npos; at = text.find('\xED', at + 3)) {
    if (static_cast<unsigned char>(text[at + 1]) >= 0xA0) text.replace(at, 3, "\xEF\xBF\xBD");
  }
  return text;
}

void appendEscaped(std::string_view utf8, std::string& out) {
  if (!UTFEncoder::isValid(utf8)) return appendEscaped(repaired(utf8), out);
  out += '"';
  while (!utf8.empty()) {
    const std::size_t plain = plainPrefix(utf8);
    out += utf8.substr(0, plain);
    utf8.remove_prefix(plain);
    if (utf8.empty()) break;
    const auto [character, size] = firstCharacter(utf8);
    if (character == '"' || character == '\\' || isUnseen(character))
      appendEscape(character, out);
    else
      out += utf8.substr(0, size);
    utf8.remove_prefix(size);
  }
  out += '"';
}

constexpr std::size_t LONGEST_SHORT_STRING = 64;

// Writes a short text that needs no escape as a string, at a place with room for it. Answers where the string ends;
// null for any other text.
char* putString(char* to, std::string_view utf8) {
  const std::size_t size = utf8.size();
  if (size > LONGEST_SHORT_STRING || !copyPlain(utf8, to + 1)) return nullptr;
  to[0] = to[size + 1] = '"';
  return to + size + 2;
}

void appendString(std::string_view utf8, std::string& out) {
  char buffer[LONGEST_SHORT_STRING + 2];
  if (char* const end = putString(buffer, utf8))
    out.append(buffer, end);
  else
    appendEscaped(utf8, out);
}

// These write at `to`, where there is room, and answer where they ended.

char* put(char* to, std::string_view text) { return std::copy(text.begin(), text.end(), to); }

constexpr std::size_t LONGEST_NUMBER = std::numeric_limits<std::int64_t>::digits10 + 2;

constexpr auto SMALL_NUMBERS = [] {
  std::array<std::array<char, 2>, 100> numbers{};
  for (int i = 0; i < 100; ++i) {
    const char units = static_cast<char>('0' + i % 10);
    numbers[static_cast<std::size_t>(i)] = {i < 10 ? units : static_cast<char>('0' + i / 10), units};
  }
  return numbers;
}();

char* putNumber(char* to, std::int64_t value) {
  if (value < 0 || value >= std::ssize(SMALL_NUMBERS)) return std::to_chars(to, to + LONGEST_NUMBER, value).ptr;
  std::memcpy(to, SMALL_NUMBERS[static_cast<std::size_t>(value)].data(), 2);
  return to + (value < 10 ? 1 : 2);
}

// Gathers what it is told in a buffer: there is room in it for any one field, but for a long text, which goes past it.
class JsonSink final : public FieldSink {
 public:
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): nothing reads what was not written to the buffer
  JsonSink(JsonOptions options, std::string& out) : options_(options), out_(out) { *at_++ = '{'; }

  void finish() {
    close('}');
    flush();
  }

  void number(std::string_view name, WireType type, std::int64_t value) override {
    char* const to = beginValue(name);
    at_ = type == WireType::BOOL ? put(to, value != 0 ? "true" : "false") : putNumber(to, value);
  }

  void text(std::string_view name, std::string_view utf8, bool secret) override {
    at_ = putText(beginValue(name), secret && options_.secrets == Secrets::MASKED ? SECRET_MASK : utf8);
  }

  bool beginRecord(std::string_view name, std::string_view) override {
    open(name, '{');
    return true;
  }
  void endRecord() override { close('}'); }

  void beginList(std::string_view name, WireType, std::int64_t) override { open(name, '['); }
  void endList() override { close(']'); }

  void beginConditional(bool) override {}
  void endConditional() override {}

 private:
  // Comma, line break, indent, name and text with their quotation marks, colon and space.
  static constexpr std::size_t LONGEST_FIELD = 2 + 2 * DEEPEST_INDENT + 2 * (LONGEST_SHORT_STRING + 2) + 2;
  static_assert(LONGEST_NUMBER <= LONGEST_SHORT_STRING);

  // Answers where the value goes.
  char* beginValue(std::string_view name) {
    makeRoom();
    char* to = at_;
    *to = ',';
    to += isFirst_ ? 0 : 1;
    isFirst_ = false;
    to = beginLine(to);
    if (name.empty()) return to;
    to = putText(to, name);
    *to++ = ':';
    if (options_.indented) *to++ = ' ';
    return to;
  }

  char* putText(char* to, std::string_view utf8) {
    char* const end = putString(to, utf8);
    return end != nullptr ? end : sendText(to, utf8);
  }

  char* sendText(char* to, std::string_view utf8) {
    at_ = to;
    flush();
    appendEscaped(utf8, out_);
    return at_;
  }

  void open(std::string_view name, char bracket) {
    char* const to = beginValue(name);
    *to = bracket;
    at_ = to + 1;
    isFirst_ = true;
    ++depth_;
  }

  void close(char bracket) {
    --depth_;
    makeRoom();
    char* const to = isFirst_ ? at_ : beginLine(at_);
    *to = bracket;
    at_ = to + 1;
    isFirst_ = false;
  }

  char* beginLine(char* to) const {
    if (!options_.indented) return to;
    *to++ = '\n';
    return std::fill_n(to, 2 * std::min(depth_, DEEPEST_INDENT), ' ');
  }

  void makeRoom() {
    if (static_cast<std::size_t>(std::end(buffer_) - at_) < LONGEST_FIELD) flush();
  }

  void flush() { out_.append(std::begin(buffer_), std::exchange(at_, std::begin(buffer_))); }

  JsonOptions options_;
  std::string& out_;
  std::size_t depth_ = 1;
  bool isFirst_ = true;
  char buffer_[2048];
  char* at_ = std::begin(buffer_);
};

}  // namespace

void appendJson(Inspectable object, std::string& out, JsonOptions options) {
  JsonSink sink(options, out);
  sink.text("class", object.className(), false);
  object.describe(sink);
  sink.finish();
}

std::string toJson(Inspectable object, JsonOptions options) {
  std::string json;
  appendJson(object, json, options);
  return json;
}

void appendJsonString(std::string_view utf8, std::string& out) { appendString(utf8, out); }

std::string toJsonString(std::string_view utf8) {
  std::string text;
  appendString(utf8, text);
  return text;
}

}  // namespace Tessel
