#include <herald/inspect/Catalogue.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/wire/FieldSink.h>

#include <map>
#include <utility>
#include <vector>

namespace Tessel {

namespace {

constexpr std::string_view LEGEND = R"(The protocol, from its layouts: every message, every request and every record
that they hold, with the fields in wire order.

Numbers are signed, high byte first: byte 8 bits, short 16, int 32, int64 64. A
bool is one byte. A string is an unsigned 16-bit count of bytes, then UTF-8. A
list is its count, then the items; a list that names no count takes it from an
earlier field. A field marked "conditional" travels only under a condition on
earlier fields.
)";

constexpr std::string_view nameOf(WireType type) {
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

std::string fieldLine(std::string_view name, std::string_view type) {
  constexpr std::size_t TYPE_COLUMN = 36;
  std::string line = "  " + std::string(name);
  line.append(line.size() < TYPE_COLUMN ? TYPE_COLUMN - line.size() : 1, ' ');
  return line + std::string(type) + '\n';
}

// What the messages reach.
struct Reached {
  // The lines of each record, by its name.
  std::map<std::string, std::string> records;
  // The record of each type string of a tagged list.
  std::map<std::string, std::string> typeStrings;
};

// Prints a layout to `lines` and, once each, the records that it reaches.
class LayoutSink final : public FieldSink {
 public:
  LayoutSink(Reached& reached, std::string& lines) : reached_(reached), open_{{.lines = &lines}} {}

  bool wantsLayout() const override { return true; }

  void number(std::string_view name, WireType type, std::int64_t) override { add(name, nameOf(type)); }

  void text(std::string_view name, std::string_view, bool secret) override {
    add(name, secret ? "string, secret" : "string");
  }

  bool beginRecord(std::string_view name, std::string_view type) override {
    add(name, type);
    const auto [record, isNew] = reached_.records.try_emplace(std::string(type));
    open_.push_back({.lines = &record->second});
    return isNew;
  }
  void endRecord() override { open_.pop_back(); }

  void beginList(std::string_view name, WireType countType, std::int64_t) override {
    open_.push_back({.listName = std::string(name), .countType = countType});
  }

  void endList() override {
    const Scope list = std::move(open_.back());
    open_.pop_back();
    std::string type = "list of " + list.itemType;
    if (list.countType != WireType::NONE) type.append(", ").append(nameOf(list.countType)).append(" count");
    add(list.listName, type);
  }

  void beginConditional(bool) override { open_.back().isConditional = true; }
  void endConditional() override { open_.back().isConditional = false; }

 private:
  // A record or message, which has lines, or a list, which has items.
  struct Scope {
    std::string* lines = nullptr;
    bool isConditional = false;
    std::string listName{};
    WireType countType = WireType::NONE;
    std::string itemType{};
  };

  void add(std::string_view name, std::string_view type) {
    Scope& scope = open_.back();
    if (scope.lines != nullptr)
      *scope.lines += fieldLine(name, std::string(type) + (scope.isConditional ? ", conditional" : ""));
    else
      addItem(scope, name, type);
  }

  // The items of a tagged list, one of each class, have names: the type strings.
  void addItem(Scope& list, std::string_view name, std::string_view type) {
    if (name.empty()) {
      list.itemType = type;
      return;
    }
    list.itemType = "the record of the type string";
    reached_.typeStrings.emplace(name, type);
  }

  Reached& reached_;
  std::vector<Scope> open_;
};

template <class Row>
std::string printMessages(std::string_view heading, std::span<const Row> rows, Reached& reached) {
  std::string text = "\n" + std::string(heading) + "\n";
  for (const Row& row : rows) {
    text += '\n' + std::to_string(row.id) + ' ';
    if (row.create == nullptr) {
      text += "(creates no message)\n";
      continue;
    }
    text += std::string(row.name) + "\n";
    LayoutSink sink(reached, text);
    row.create()->describe(sink);
  }
  return text;
}

}  // namespace

std::string protocolCatalogue() {
  Reached reached;
  std::string text(LEGEND);
  text += printMessages("MESSAGES FROM SERVERS", clientMessageTable(), reached);
  text += printMessages("REQUESTS TO SERVERS", serverMessageTable(), reached);
  text += "\nRECORDS\n";
  for (const auto& [name, lines] : reached.records) text.append("\n").append(name).append("\n").append(lines);
  text += "\nTYPE STRINGS\n\n";
  for (const auto& [typeString, record] : reached.typeStrings) text += fieldLine(record, typeString);
  return text;
}

}  // namespace Tessel
