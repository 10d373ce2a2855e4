#include <gtest/gtest.h>
#include <herald/inspect/Encoding.h>
#include <herald/platform/keystone/ByteStream.h>
#include <tests/support/Notation.h>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace Tessel {

namespace {

constexpr std::string_view DIGITS = "0123456789ABCDEF";
constexpr std::array<std::pair<char, char>, 5> ESCAPES = {
    {{'t', '\t'}, {'n', '\n'}, {'0', '\0'}, {'"', '"'}, {'\\', '\\'}}};

// The text within the quotes at the start of `notation`, from which it is taken off.
std::string takeQuoted(std::string_view& notation) {
  std::size_t end = 1;
  while (end < notation.size() && notation[end] != '"') end += notation[end] == '\\' ? 2 : 1;
  if (end >= notation.size()) throw std::invalid_argument("no closing quote: " + std::string(notation));
  std::string text = unescape(notation.substr(1, end - 1));
  notation.remove_prefix(end + 1);
  return text;
}

std::uint8_t takeByte(std::string_view& notation) {
  const std::size_t high = DIGITS.find(notation[0]);
  const std::size_t low = notation.size() > 1 ? DIGITS.find(notation[1]) : std::string_view::npos;
  if (high == std::string_view::npos || low == std::string_view::npos)
    throw std::invalid_argument("no byte: " + std::string(notation));
  notation.remove_prefix(2);
  return static_cast<std::uint8_t>(high << 4 | low);
}

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    const auto* escape = std::ranges::find(ESCAPES, c, &std::pair<char, char>::second);
    if (escape != ESCAPES.end())
      result += {'\\', escape->first};
    else
      result += c;
  }
  return result + '"';
}

class ValueSink final : public FieldSink {
 public:
  void number(std::string_view, WireType, std::int64_t value) override { add(std::to_string(value)); }
  void text(std::string_view, std::string_view utf8, bool) override { add(quoted(utf8)); }
  bool beginRecord(std::string_view, std::string_view) override { return true; }
  void endRecord() override {}
  void beginList(std::string_view, WireType countType, std::int64_t count) override {
    add("(");
    if (countType != WireType::NONE) add(std::to_string(count));
  }
  void endList() override { values += ')'; }
  void beginConditional(bool) override {}
  void endConditional() override {}

  std::string values;

 private:
  void add(const std::string& value) {
    if (!values.empty() && values.back() != '(') values += ' ';
    values += value;
  }
};

}  // namespace

std::vector<std::uint8_t> toBytes(std::string_view notation) {
  std::vector<std::uint8_t> bytes;
  while (!notation.empty()) {
    if (notation.front() == ' ') {
      notation.remove_prefix(1);
    } else if (notation.front() == '"') {
      const std::string text = takeQuoted(notation);
      bytes.insert(bytes.end(), text.begin(), text.end());
    } else {
      bytes.push_back(takeByte(notation));
    }
  }
  return bytes;
}

std::string toHex(std::span<const std::uint8_t> bytes) {
  std::string hex;
  for (const std::uint8_t byte : bytes) hex += {DIGITS[byte >> 4], DIGITS[byte & 15]};
  return hex;
}

std::string unescape(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\') {
      result += text[i];
      continue;
    }
    const char code = ++i < text.size() ? text[i] : ' ';
    const auto* escape = std::ranges::find(ESCAPES, code, &std::pair<char, char>::first);
    if (escape == ESCAPES.end()) throw std::invalid_argument("unknown escape: " + std::string(text));
    result += escape->second;
  }
  return result;
}

std::string valuesOf(Inspectable object) {
  ValueSink sink;
  object.describe(sink);
  return sink.values;
}

std::vector<std::uint8_t> encodedOf(Inspectable object) {
  ByteStream out;
  EXPECT_TRUE(encode(object, out));
  return {out.bytes().begin(), out.bytes().end()};
}

}  // namespace Tessel
