#include <herald/inspect/Json.h>
#include <herald/platform/keystone/UTFEncoder.h>
#include <herald/wire/FieldSink.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <limits>
#include <utility>

namespace Tessel {

namespace {

// Deep data would otherwise cost the square of its depth.
constexpr std::size_t DEEPEST_INDENT = 16;

// The characters that stand for themselves in a string, whatever comes before and behind them.
constexpr std::array<bool, 256> IS_PLAIN = [] {
  std::array<bool, 256> isPlain{};
  for (std::size_t c = 0x20; c < 0x7F; ++c) isPlain[c] = c != '"' && c != '\\';
  return isPlain;
}();

std::size_t plainPrefix(std::string_view utf8) {
  std::size_t i = 0;
  while (i < utf8.size() && IS_PLAIN[static_cast<unsigned char>(utf8[i])]) ++i;
  return i;
}

void appendEscaped(char c, std::string& out) {
  constexpr std::string_view DIGITS = "0123456789abcdef";
  constexpr std::pair<char, char> SHORT_FORMS[] = {{'"', '"'}, {'\\', '\\'}, {'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}};
  for (const auto& [character, letter] : SHORT_FORMS) {
    if (c != character) continue;
    out += '\\';
    out += letter;
    return;
  }
  const auto byte = static_cast<unsigned char>(c);
  if (byte >= 0x20) {
    out += c;
    return;
  }
  out += "\\u00";
  out += DIGITS[byte >> 4];
  out += DIGITS[byte & 0xF];
}

// The way through wide text replaces what is no UTF-8 but a lone surrogate, which stands in ED A0 80 to ED BF BF.
std::string repaired(std::string_view utf8) {
  std::string text = UTFEncoder::toUTF8(UTFEncoder::toWide(utf8));
  for (std::size_t at = text.find('\xED'); at != std::string::npos; at = text.find('\xED', at + 3)) {
    if (static_cast<unsigned char>(text[at + 1]) >= 0xA0) text.replace(at, 3, "\xEF\xBF\xBD");
  }
  return text;
}

void appendString(std::string_view utf8, std::string& out) {
  const std::size_t plain = plainPrefix(utf8);
  if (plain < utf8.size() && !UTFEncoder::isValid(utf8)) return appendString(repaired(utf8), out);
  out += '"';
  out += utf8.substr(0, plain);
  for (const char c : utf8.substr(plain)) appendEscaped(c, out);
  out += '"';
}

class JsonSink final : public FieldSink {
 public:
  JsonSink(JsonOptions options, std::string& out) : options_(options), out_(out) { out_ += '{'; }

  void finish() { close('}'); }

  void number(std::string_view name, WireType type, std::int64_t value) override {
    beginValue(name);
    if (type == WireType::BOOL) {
      out_ += value != 0 ? "true" : "false";
    } else {
      char digits[std::numeric_limits<std::int64_t>::digits10 + 2];
      out_.append(digits, std::to_chars(digits, std::end(digits), value).ptr);
    }
  }

  void text(std::string_view name, std::string_view utf8, bool secret) override {
    beginValue(name);
    appendString(secret && options_.secrets == Secrets::MASKED ? SECRET_MASK : utf8, out_);
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
  void beginValue(std::string_view name) {
    // In one piece for nearly every name.
    char head[64];
    if (!options_.indented && name.size() + 4 <= sizeof(head) && plainPrefix(name) == name.size()) {
      char* end = head;
      if (!isFirst_) *end++ = ',';
      isFirst_ = false;
      if (!name.empty()) {
        *end++ = '"';
        end = std::copy(name.begin(), name.end(), end);
        *end++ = '"';
        *end++ = ':';
      }
      out_.append(head, end);
      return;
    }
    if (!isFirst_) out_ += ',';
    isFirst_ = false;
    beginLine();
    if (name.empty()) return;
    appendString(name, out_);
    out_ += options_.indented ? ": " : ":";
  }

  void open(std::string_view name, char bracket) {
    beginValue(name);
    out_ += bracket;
    isFirst_ = true;
    ++depth_;
  }

  void close(char bracket) {
    --depth_;
    if (!isFirst_) beginLine();
    out_ += bracket;
    isFirst_ = false;
  }

  void beginLine() {
    if (!options_.indented) return;
    out_ += '\n';
    out_.append(2 * std::min(depth_, DEEPEST_INDENT), ' ');
  }

  JsonOptions options_;
  std::string& out_;
  std::size_t depth_ = 1;
  bool isFirst_ = true;
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
