#include <herald/inspect/Schema.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/UTFEncoder.h>
#include <herald/wire/Condition.h>

#include <algorithm>
#include <utility>

namespace Tessel {

namespace {

// Reads a layout into a schema, and those of the records that it reaches, once each.
class SchemaSink final : public FieldSink {
 public:
  SchemaSink(RecordSchema& body, Schema::Records& records) : records_(records), open_{{.fields = &body.fields}} {}

  bool wantsLayout() const override { return true; }

  void number(std::string_view name, WireType type, std::int64_t value) override {
    add({.name = std::string(name), .kind = FieldKind::NUMBER, .type = type, .startNumber = value})
        .valueNames.swap(valueNames_);
    valueNames_.clear();
  }

  void text(std::string_view name, std::string_view utf8, bool secret) override {
    add({.name = std::string(name),
         .kind = FieldKind::TEXT,
         .type = WireType::STRING,
         .isSecret = secret,
         .startText = std::string(utf8)});
  }

  bool beginRecord(std::string_view name, std::string_view type) override {
    const auto [record, isNew] = records_.try_emplace(std::string(type), RecordSchema{std::string(type)});
    add({.name = std::string(name), .kind = FieldKind::RECORD, .record = &record->second});
    open_.push_back({.fields = &record->second.fields});
    return isNew;
  }
  void endRecord() override { open_.pop_back(); }

  void beginList(std::string_view name, WireType countType, std::int64_t) override {
    FieldSchema& list = add({.name = std::string(name), .kind = FieldKind::LIST, .type = countType});
    list.countField = std::exchange(open_.back().countField, std::nullopt);
    list.tagField = std::exchange(open_.back().tagField, std::nullopt);
    open_.push_back({.fields = &list.items});
  }
  void endList() override { open_.pop_back(); }

  void underCondition(const Condition& condition) override {
    const std::size_t field = indexOf(condition.field);
    if (fields()[field].startNumber != condition.value) throwUntold("condition", condition.field);
    open_.back().condition = FieldCondition{field, condition.mask, condition.first, condition.last};
  }
  void beginConditional(bool) override {}
  void valuesNamed(std::int64_t first, std::span<const std::string_view> names) override {
    for (std::size_t i = 0; i < names.size(); ++i)
      if (!names[i].empty()) valueNames_.emplace(first + static_cast<std::int64_t>(i), names[i]);
  }
  void endConditional() override { open_.back().condition.reset(); }
  void countedBy(std::string_view field) override { open_.back().countField = indexOf(field); }
  void taggedBy(std::string_view field) override { open_.back().tagField = indexOf(field); }

 private:
  // A record, or a list, whose fields are its items.
  struct Scope {
    std::vector<FieldSchema>* fields;
    std::optional<FieldCondition> condition{};
    std::optional<std::size_t> countField{};
    std::optional<std::size_t> tagField{};
  };

  std::vector<FieldSchema>& fields() { return *open_.back().fields; }

  FieldSchema& add(FieldSchema field) {
    field.condition = open_.back().condition;
    return fields().emplace_back(std::move(field));
  }

  std::size_t indexOf(std::string_view name) {
    const auto field = std::ranges::find(fields(), name, &FieldSchema::name);
    if (field == fields().end()) throwUntold("field", name);
    return static_cast<std::size_t>(field - fields().begin());
  }

  // A layout that names another field than the one that it looks at, or none.
  [[noreturn]] static void throwUntold(std::string_view what, std::string_view name) {
    throw KeystoneException(
        L"inspect/Schema", __LINE__,
        UTFEncoder::toWide("A layout has no " + std::string(what) + " on \"" + std::string(name) + "\"."));
  }

  Schema::Records& records_;
  std::vector<Scope> open_;
  // Of the next number.
  std::map<std::int64_t, std::string> valueNames_;
};

template <class Row>
std::vector<MessageSchema> readTable(std::span<const Row> rows, Schema::Records& bodies, Schema::Records& records) {
  std::vector<MessageSchema> table;
  for (const Row& row : rows) {
    if (row.create == nullptr) {
      table.push_back({row.id, nullptr});
      continue;
    }
    const auto [body, isNew] = bodies.try_emplace(std::string(row.name), RecordSchema{std::string(row.name)});
    table.push_back({row.id, &body->second});
    if (!isNew) continue;
    SchemaSink sink(body->second, records);
    row.create()->describe(sink);
  }
  return table;
}

}  // namespace

std::string_view nameOf(WireType type) {
  switch (type) {
    case WireType::BOOL:
      return "bool";
    case WireType::BYTE:
      return "byte";
    case WireType::SHORT:
      return "short";
    case WireType::INT:
      return "int";
    case WireType::INT64:
      return "int64";
    case WireType::STRING:
      return "string";
    case WireType::NONE:
      break;
  }
  return "";
}

Schema::Schema()
    : messages_(readTable(clientMessageTable(), bodies_, records_)),
      requests_(readTable(serverMessageTable(), bodies_, records_)) {}

const Schema& Schema::ofProtocol() {
  static const Schema schema;
  return schema;
}

const RecordSchema* Schema::find(std::string_view className) const {
  if (const auto body = bodies_.find(className); body != bodies_.end()) return &body->second;
  const auto record = records_.find(className);
  return record != records_.end() ? &record->second : nullptr;
}

}  // namespace Tessel
