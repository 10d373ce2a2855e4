#include "Printing.h"
#include "Schemas.h"

namespace Tessel {

namespace {

constexpr std::string_view HEAD =
    R"(# Herald's protocol for Kaitai Struct, printed from the layouts of its messages: a parser of the payload of one packet
# of a capture, which is a byte for the direction and a whole message or request.
#
# What this format cannot say, so that a parser made of it reads some bodies otherwise than Herald:
# - A text that is no UTF-8, or is cut short, is empty for Herald, which goes on behind it. Only a few texts, such as
#   names of players, end the reading of their record. A parser ends there, or shows other characters.
# - A few records answer after reading that their values are none, or convert them; an item of a list that does so is
#   kept, and so are some fields. A parser shows what the bytes hold.
# - A count below zero is an error for some lists and no items for others. A parser reads no items.
# - The items of a list whose class has no known name are an error once there is one. A parser skips them.
# - Reading ends at once where a count claims more than the bytes can hold, and trees may be as deep as their data. A
#   parser reads on to the end of the bytes, and each level of a tree takes its stack.
# - Secrets are not marked but in their documentation.
# - Messages that are cut into several packets (the directions 128 and 129) have to be joined before.

meta:
  id: herald
  title: Herald's protocol
  endian: be
  encoding: UTF-8
seq:
  - id: direction
    type: u1
    enum: direction
  - id: message
    type:
      switch-on: direction
      cases:
        'direction::from_server': message_from_server
        'direction::to_server': request_to_server
enums:
  direction:
    0: from_server
    1: to_server
types:
  text_item:
    seq:
      - id: len_value
        type: u2
      - id: value
        type: str
        size: len_value
  bool_item:
    seq:
      - id: raw_value
        type: u1
    instances:
      value:
        value: raw_value != 0
)";

constexpr std::string_view MESSAGE_HEADER = R"(  message_from_server:
    seq:
      - id: id
        type: s2
      - id: body
        size-eos: true
)";

constexpr std::string_view REQUEST_HEADER = R"(  request_to_server:
    seq:
      - id: id
        type: s2
      - id: len_body
        type: s2
      - id: body
        size: len_body
)";

constexpr bool isUpper(char c) { return c >= 'A' && c <= 'Z'; }
constexpr bool isLower(char c) { return c >= 'a' && c <= 'z'; }

// As identifiers are written here: playerId is player_id, VIPInfo is vip_info.
std::string identifier(std::string_view name) {
  std::string words;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const char c = name[i];
    if (c == ':') {
      if (words.back() != '_') words += '_';
      continue;
    }
    const bool endsCapitals = i > 0 && isUpper(name[i - 1]) && i + 1 < name.size() && isLower(name[i + 1]);
    const bool beginsWord = isUpper(c) && i > 0 && name[i - 1] != ':' && (!isUpper(name[i - 1]) || endsCapitals);
    if (beginsWord) words += '_';
    words += isUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return words;
}

std::string integerType(WireType type) { return type == WireType::BOOL ? "u1" : "s" + std::to_string(widthOf(type)); }

std::string compare(const std::string& number, const FieldCondition& condition) {
  const std::string first = std::to_string(condition.first);
  if (condition.first == condition.last) return number + " == " + first;
  return number + " >= " + first + " and " + number + " <= " + std::to_string(condition.last);
}

std::string expressionOf(const FieldCondition& condition, const RecordSchema& record) {
  const FieldSchema& field = record.fields[condition.field];
  const std::string number = identifier(field.name);
  if (field.type == WireType::BOOL) return condition.holdsFor(1) ? number : "not " + number;
  if (condition.mask == -1) return compare(number, condition);
  return compare("(" + number + " & " + std::to_string(condition.mask) + ")", condition);
}

std::string countOf(const FieldSchema& list, const RecordSchema& record) {
  if (list.countField && record.fields[*list.countField].kind == FieldKind::LIST)
    return identifier(record.fields[*list.countField].name) + ".size";
  const std::string count =
      list.countField ? identifier(record.fields[*list.countField].name) : "num_" + identifier(list.name);
  return "'" + count + " < 0 ? 0 : " + count + "'";
}

std::string itemType(const FieldSchema& item) {
  if (item.kind == FieldKind::RECORD) return identifier(item.record->name);
  if (item.kind == FieldKind::TEXT) return "text_item";
  return item.type == WireType::BOOL ? "bool_item" : integerType(item.type);
}

// Prints the attributes of one record.
class TypePrinter {
 public:
  explicit TypePrinter(const RecordSchema& record) : record_(record) {}

  std::string print() && {
    for (const FieldSchema& field : record_.fields) {
      condition_ = field.condition ? "        if: " + expressionOf(*field.condition, record_) + '\n' : "";
      addField(field);
    }
    std::string text = attributes_.empty() ? "" : "    seq:\n" + attributes_;
    if (!instances_.empty()) text += "    instances:\n" + instances_;
    return text;
  }

 private:
  void addField(const FieldSchema& field) {
    const std::string name = identifier(field.name);
    switch (field.kind) {
      case FieldKind::NUMBER:
        if (field.type == WireType::BOOL) return addBool(name);
        return addAttribute(name, integerType(field.type));
      case FieldKind::TEXT:
        addAttribute("len_" + name, "u2");
        addAttribute(name, "str");
        addKey("size", "len_" + name);
        if (field.isSecret) addKey("doc", "Secret.");
        return;
      case FieldKind::RECORD:
        return addAttribute(name, identifier(field.record->name));
      case FieldKind::LIST:
        return addList(name, field);
    }
  }

  void addBool(const std::string& name) {
    addAttribute("raw_" + name, "u1");
    instances_ += "      " + name + ":\n        value: raw_" + name + " != 0\n";
    if (!condition_.empty()) instances_ += condition_;
  }

  void addList(const std::string& name, const FieldSchema& list) {
    if (!list.countField) addAttribute("num_" + name, integerType(list.type));
    if (list.tagField)
      addSwitch(name, list);
    else
      addAttribute(name, itemType(list.items.front()));
    addKey("repeat", "expr");
    addKey("repeat-expr", countOf(list, record_));
  }

  void addSwitch(const std::string& name, const FieldSchema& list) {
    attributes_ += "      - id: " + name + "\n        type:\n          switch-on: "
                   + identifier(record_.fields[*list.tagField].name) + "\n          cases:\n";
    for (const FieldSchema& item : list.items)
      attributes_ += "            '\"" + item.name + "\"': " + itemType(item) + '\n';
    attributes_ += condition_;
  }

  void addAttribute(const std::string& name, const std::string& type) {
    attributes_ += "      - id: " + name + "\n        type: " + type + '\n' + condition_;
  }

  void addKey(const std::string& key, const std::string& value) {
    attributes_ += "        " + key + ": " + value + '\n';
  }

  const RecordSchema& record_;
  std::string condition_;
  std::string attributes_;
  std::string instances_;
};

std::string casesOf(std::span<const MessageSchema> messages) {
  std::string cases = "        type:\n          switch-on: id\n          cases:\n";
  for (const MessageSchema& message : messages) {
    if (message.body == nullptr) continue;
    cases += "            " + std::to_string(message.id) + ": " + identifier(message.body->name) + '\n';
  }
  return cases;
}

std::string typeOf(const RecordSchema& record, std::string_view what) {
  return "  " + identifier(record.name) + ":\n    doc: " + std::string(what) + " " + record.name + '\n'
         + TypePrinter(record).print();
}

}  // namespace

std::string kaitaiSchema(const Schema& schema) {
  std::string text(HEAD);
  text.append(MESSAGE_HEADER).append(casesOf(schema.messages()));
  text.append(REQUEST_HEADER).append(casesOf(schema.requests()));
  for (const auto& [name, body] : bodiesOf(schema.messages())) text += typeOf(*body, "Message");
  for (const auto& [name, body] : bodiesOf(schema.requests())) text += typeOf(*body, "Request");
  for (const auto& [name, record] : schema.records()) {
    // One class is a message and, in another message, a record.
    if (schema.find(name) == &record) text += typeOf(record, "Record");
  }
  return text;
}

}  // namespace Tessel
