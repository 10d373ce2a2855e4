#include <herald/inspect/Json.h>
#include <herald/platform/keystone/UTFEncoder.h>
#include <herald/wire/FieldSink.h>

#include <algorithm>

namespace Tessel {

namespace {

// Deep data would otherwise cost the square of its depth.
constexpr std::size_t DEEPEST_INDENT = 16;

void appendEscaped(char c, std::string& out) {
  constexpr std::string_view DIGITS = "0123456789abcdef";
  switch (c) {
    case '"':
      out += "\\\"";
      return;
    case '\\':
      out += "\\\\";
      return;
    case '\n':
      out += "\\n";
      return;
    case '\r':
      out += "\\r";
      return;
    case '\t':
      out += "\\t";
      return;
    default:
      break;
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
  if (!UTFEncoder::isValid(utf8)) return appendString(repaired(utf8), out);
  out += '"';
  for (const char c : utf8) appendEscaped(c, out);
  out += '"';
}

class JsonSink final : public FieldSink {
 public:
  explicit JsonSink(JsonOptions options) : options_(options) {}

  std::string finish() {
    close('}');
    return std::move(out_);
  }

  void number(std::string_view name, WireType type, std::int64_t value) override {
    beginValue(name);
    if (type == WireType::BOOL)
      out_ += value != 0 ? "true" : "false";
    else
      out_ += std::to_string(value);
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
  std::string out_ = "{";
  std::size_t depth_ = 1;
  bool isFirst_ = true;
};

}  // namespace

std::string toJson(Inspectable object, JsonOptions options) {
  JsonSink sink(options);
  sink.text("class", object.className(), false);
  object.describe(sink);
  return sink.finish();
}

std::string toJsonString(std::string_view utf8) {
  std::string text;
  appendString(utf8, text);
  return text;
}

}  // namespace Tessel
