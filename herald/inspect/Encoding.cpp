#include <herald/inspect/Encoding.h>
#include <herald/inspect/FieldSource.h>
#include <herald/inspect/Schema.h>
#include <herald/messages/RequestFrame.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/Format.h>
#include <herald/platform/keystone/UTFEncoder.h>
#include <herald/wire/FieldSink.h>

#include <algorithm>
#include <optional>
#include <vector>

namespace Tessel {

namespace {

constexpr const wchar_t* FILE_NAME = L"inspect/Encoding";

bool fits(std::int64_t number, WireType type) {
  const int width = widthOf(type);
  if (width == 0 || width == 8) return true;
  const std::int64_t limit = std::int64_t{1} << (8 * width - 1);
  return -limit <= number && number < limit;
}

void writeNumber(WireType type, std::int64_t value, ByteStream& out) {
  switch (type) {
    case WireType::BOOL:
      out << (value != 0);
      break;
    case WireType::BYTE:
      out << static_cast<std::int8_t>(value);
      break;
    case WireType::SHORT:
      out << static_cast<std::int16_t>(value);
      break;
    case WireType::INT:
      out << static_cast<std::int32_t>(value);
      break;
    case WireType::INT64:
      out << value;
      break;
    case WireType::NONE:
    case WireType::STRING:
      break;
  }
}

class EncodingSink final : public FieldSink {
 public:
  EncodingSink(ByteStream& out, Secrets secrets) : out_(out), secrets_(secrets) {}

  void number(std::string_view, WireType type, std::int64_t value) override { writeNumber(type, value, out_); }
  void text(std::string_view, std::string_view utf8, bool secret) override {
    UTFEncoder::encodeToTsUTF8(secret && secrets_ == Secrets::MASKED ? SECRET_MASK : utf8, out_);
  }

  void beginList(std::string_view name, WireType countType, std::int64_t count) override {
    if (count > 0 && !fits(count, countType)) {
      throw KeystoneException(
          FILE_NAME, __LINE__,
          formatText(L"The %d items of the list \"%s\" are too many for its count.", count, UTFEncoder::toWide(name)));
    }
    writeNumber(countType, count, out_);
  }
  void endList() override {}

  bool beginRecord(std::string_view, std::string_view) override { return true; }
  void endRecord() override {}
  void beginConditional(bool) override {}
  void endConditional() override {}

 private:
  ByteStream& out_;
  Secrets secrets_;
};

std::string inQuotes(std::string_view text) { return '"' + std::string(text) + '"'; }

std::string countedItems(std::int64_t count) { return std::to_string(count) + (count == 1 ? " item" : " items"); }

// Fills layouts with the values of a source, record by record, without native recursion.
class SourceEncoder {
 public:
  SourceEncoder(FieldSource& source, ByteStream& out) : source_(source), out_(out) {}

  void encode(const RecordSchema& root) {
    openRecord(root, true);
    while (!open_.empty()) {
      if (open_.back().record != nullptr)
        continueRecord();
      else
        continueList();
    }
  }

 private:
  // A record or a list that is not complete yet.
  struct Scope {
    const RecordSchema* record = nullptr;
    const FieldSchema* item = nullptr;
    // Otherwise all of a record takes its starting values.
    bool isGiven = true;
    std::size_t next = 0;
    std::size_t itemCount = 0;
    // Of the fields of the record so far; of a list its count.
    std::vector<FieldValue> values{};
  };

  void openRecord(const RecordSchema& record, bool isGiven) {
    open_.push_back({.record = &record, .isGiven = isGiven});
    open_.back().values.reserve(record.fields.size());
  }

  void continueRecord() {
    Scope& scope = open_.back();
    if (scope.next == scope.record->fields.size()) return closeRecord();
    const FieldSchema& field = scope.record->fields[scope.next++];
    FieldValue value = scope.isGiven ? source_.find(field.name) : FieldValue();
    if (field.condition && !field.condition->holdsFor(scope.values[field.condition->field].number)) {
      if (value.kind != FieldValue::Kind::MISSING) {
        fail("does not travel with this value of " + inQuotes(scope.record->fields[field.condition->field].name));
      }
      scope.values.push_back({});
      return;
    }
    if (value.kind == FieldValue::Kind::MISSING) value = startOf(field);
    scope.values.push_back(value);
    write(field, value);
  }

  void continueList() {
    Scope& scope = open_.back();
    if (scope.next == scope.itemCount) {
      source_.leave();
      open_.pop_back();
      return;
    }
    ++scope.next;
    write(*scope.item, source_.next());
  }

  void closeRecord() {
    const std::string unknown = open_.back().isGiven ? source_.leave() : "";
    const RecordSchema& record = *open_.back().record;
    open_.pop_back();
    if (!unknown.empty()) failAt(joined(path(), unknown), inQuotes(record.name) + " has no such field");
  }

  FieldValue startOf(const FieldSchema& field) {
    switch (field.kind) {
      case FieldKind::NUMBER:
        return {field.type == WireType::BOOL ? FieldValue::Kind::FLAG : FieldValue::Kind::NUMBER,
                countGivenFor(field).value_or(field.startNumber)};
      case FieldKind::TEXT:
        return {.kind = FieldValue::Kind::TEXT, .text = field.startText};
      case FieldKind::LIST:
        return {.kind = FieldValue::Kind::LIST};
      case FieldKind::RECORD:
        break;
    }
    return {};
  }

  // How many items a later list has whose number this field says.
  std::optional<std::int64_t> countGivenFor(const FieldSchema& field) {
    const Scope& scope = open_.back();
    const auto& fields = scope.record->fields;
    const auto index = static_cast<std::size_t>(&field - fields.data());
    const auto list = std::ranges::find(fields, std::optional(index), &FieldSchema::countField);
    if (list == fields.end() || !scope.isGiven) return std::nullopt;
    const FieldValue value = source_.find(list->name);
    if (value.kind != FieldValue::Kind::LIST) return std::nullopt;
    return value.number;
  }

  void write(const FieldSchema& field, const FieldValue& value) {
    switch (field.kind) {
      case FieldKind::NUMBER:
        return writeNumberOf(field, value);
      case FieldKind::TEXT:
        return writeText(field, value);
      case FieldKind::RECORD:
        return writeRecord(field, value);
      case FieldKind::LIST:
        return writeList(field, value);
    }
  }

  void writeNumberOf(const FieldSchema& field, const FieldValue& value) {
    const bool isFlag = field.type == WireType::BOOL;
    expect(value, isFlag ? FieldValue::Kind::FLAG : FieldValue::Kind::NUMBER, isFlag ? "flag" : "whole number");
    if (!isFlag && !fits(value.number, field.type)) fail(std::to_string(value.number) + misfit(field.type));
    writeNumber(field.type, value.number, out_);
  }

  void writeText(const FieldSchema& field, const FieldValue& value) {
    expect(value, FieldValue::Kind::TEXT, "text");
    if (field.isSecret && value.text == SECRET_MASK) fail("is masked");
    if (!UTFEncoder::isEncodable(value.text)) fail("is no UTF-8, or has more than 65535 bytes");
    UTFEncoder::encodeToTsUTF8(value.text, out_);
  }

  void writeRecord(const FieldSchema& field, const FieldValue& value) {
    const bool isGiven = value.kind != FieldValue::Kind::MISSING;
    if (isGiven) {
      expect(value, FieldValue::Kind::RECORD, "record");
      source_.enter();
    }
    openRecord(*field.record, isGiven);
  }

  void writeList(const FieldSchema& field, const FieldValue& value) {
    expect(value, FieldValue::Kind::LIST, "list");
    if (field.countField) checkCount(value.number, *field.countField);
    if (!fits(value.number, field.type))
      fail(countedItems(value.number) + " are too many: the count" + misfit(field.type));
    writeNumber(field.type, value.number, out_);
    if (value.number == 0) return;
    const FieldSchema& item = field.tagField ? itemOfTag(field) : field.items.front();
    source_.enter();
    open_.push_back({.item = &item, .itemCount = static_cast<std::size_t>(value.number)});
  }

  void checkCount(std::int64_t count, std::size_t countField) {
    const std::int64_t promised = std::max<std::int64_t>(open_.back().values[countField].number, 0);
    if (count == promised) return;
    fail("has " + countedItems(count) + ", and " + inQuotes(open_.back().record->fields[countField].name) + " says "
         + std::to_string(promised));
  }

  const FieldSchema& itemOfTag(const FieldSchema& list) {
    const std::string_view tag = open_.back().values[*list.tagField].text;
    const auto item = std::ranges::find(list.items, tag, &FieldSchema::name);
    if (item == list.items.end()) fail("no class has the type string " + inQuotes(tag));
    return *item;
  }

  void expect(const FieldValue& value, FieldValue::Kind kind, const char* wanted) {
    if (value.kind == kind) return;
    const auto article = std::string("is no ") + wanted;
    fail(value.text.empty() ? article : std::string(value.text) + ' ' + article);
  }

  static std::string misfit(WireType type) {
    const std::string_view name = nameOf(type);
    return " does not fit " + std::string(name.starts_with('i') ? "an " : "a ") + std::string(name);
  }

  static std::string joined(std::string path, std::string_view name) {
    if (!path.empty()) path += '.';
    return path.append(name);
  }

  // Of the field or item that is being written.
  std::string path() const {
    std::string path;
    for (const Scope& scope : open_) {
      if (scope.record == nullptr)
        path += '[' + std::to_string(scope.next - 1) + ']';
      else
        path = joined(std::move(path), scope.record->fields[scope.next - 1].name);
    }
    return path;
  }

  [[noreturn]] void fail(const std::string& reason) const { failAt(path(), reason); }

  [[noreturn]] static void failAt(const std::string& path, const std::string& reason) {
    throw KeystoneException(FILE_NAME, __LINE__, UTFEncoder::toWide(path + ": " + reason));
  }

  FieldSource& source_;
  ByteStream& out_;
  std::vector<Scope> open_;
};

}  // namespace

bool encode(Inspectable object, ByteStream& out, Secrets secrets) {
  FrameGuard written(out);
  EncodingSink sink(out, secrets);
  try {
    object.describe(sink);
    return written.complete();
  } catch (const KeystoneException& failure) {
    failure.report();
    return false;
  }
}

void encodeFrom(FieldSource& source, std::string_view className, ByteStream& out) {
  const RecordSchema* schema = Schema::ofProtocol().find(className);
  if (schema == nullptr) {
    throw KeystoneException(FILE_NAME, __LINE__, UTFEncoder::toWide("There is no class " + inQuotes(className) + "."));
  }
  FrameGuard written(out);
  SourceEncoder(source, out).encode(*schema);
  written.complete();
}

}  // namespace Tessel
