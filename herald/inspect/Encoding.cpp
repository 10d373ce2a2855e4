#include <herald/inspect/Encoding.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/Format.h>
#include <herald/platform/keystone/UTFEncoder.h>
#include <herald/wire/FieldSink.h>

namespace Tessel {

namespace {

void checkCount(std::string_view name, WireType type, std::int64_t count) {
  const int width = widthOf(type);
  if (width == 0 || width == 8 || count >> (8 * width - 1) <= 0) return;
  throw KeystoneException(
      L"inspect/Encoding", __LINE__,
      format(L"The %d items of the list \"%s\" are too many for its count.", count, UTFEncoder::toWide(name)));
}

class EncodingSink final : public FieldSink {
 public:
  explicit EncodingSink(ByteStream& out) : out_(out) {}

  void number(std::string_view, WireType type, std::int64_t value) override {
    switch (type) {
      case WireType::BOOL:
        out_ << (value != 0);
        break;
      case WireType::BYTE:
        out_ << static_cast<std::int8_t>(value);
        break;
      case WireType::SHORT:
        out_ << static_cast<std::int16_t>(value);
        break;
      case WireType::INT:
        out_ << static_cast<std::int32_t>(value);
        break;
      case WireType::INT64:
        out_ << value;
        break;
      case WireType::NONE:
      case WireType::STRING:
        break;
    }
  }
  void text(std::string_view, std::string_view utf8, bool) override { UTFEncoder::encodeToTsUTF8(utf8, out_); }

  void beginList(std::string_view name, WireType countType, std::int64_t count) override {
    checkCount(name, countType, count);
    number(name, countType, count);
  }
  void endList() override {}

  bool beginRecord(std::string_view, std::string_view) override { return true; }
  void endRecord() override {}
  void beginConditional(bool) override {}
  void endConditional() override {}

 private:
  ByteStream& out_;
};

}  // namespace

bool encode(Inspectable object, ByteStream& out) {
  ByteStream bytes;
  EncodingSink sink(bytes);
  try {
    object.describe(sink);
  } catch (const KeystoneException& failure) {
    failure.report();
    return false;
  }
  out.append(bytes.bytes());
  return true;
}

}  // namespace Tessel
