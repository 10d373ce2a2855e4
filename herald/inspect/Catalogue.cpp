#include <herald/inspect/Catalogue.h>
#include <herald/inspect/Schema.h>

#include <map>

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

std::string fieldLine(std::string_view name, std::string_view type) {
  constexpr std::size_t TYPE_COLUMN = 36;
  std::string line = "  " + std::string(name);
  line.append(line.size() < TYPE_COLUMN ? TYPE_COLUMN - line.size() : 1, ' ');
  return line + std::string(type) + '\n';
}

std::string typeOf(const FieldSchema& field) {
  switch (field.kind) {
    case FieldKind::NUMBER:
      return std::string(nameOf(field.type));
    case FieldKind::TEXT:
      return field.isSecret ? "string, secret" : "string";
    case FieldKind::RECORD:
      return field.record->name;
    case FieldKind::LIST:
      break;
  }
  std::string type = "list of " + (field.tagField ? "the record of the type string" : typeOf(field.items.front()));
  if (field.type != WireType::NONE) type.append(", ").append(nameOf(field.type)).append(" count");
  return type;
}

std::string linesOf(const RecordSchema& record) {
  std::string lines;
  for (const FieldSchema& field : record.fields)
    lines += fieldLine(field.name, typeOf(field) + (field.condition ? ", conditional" : ""));
  return lines;
}

std::string printMessages(std::string_view heading, std::span<const MessageSchema> messages) {
  std::string text = "\n";
  text.append(heading).append("\n");
  for (const MessageSchema& message : messages) {
    text.append("\n").append(std::to_string(message.id)).append(" ");
    text += message.body != nullptr ? message.body->name + '\n' + linesOf(*message.body) : "(creates no message)\n";
  }
  return text;
}

// The record of each type string of a tagged list.
std::map<std::string, std::string> typeStringsOf(const Schema& schema) {
  std::map<std::string, std::string> typeStrings;
  for (const auto& [name, record] : schema.records()) {
    for (const FieldSchema& field : record.fields) {
      if (!field.tagField) continue;
      for (const FieldSchema& item : field.items) typeStrings.emplace(item.name, item.record->name);
    }
  }
  return typeStrings;
}

}  // namespace

std::string protocolCatalogue() {
  const Schema& schema = Schema::ofProtocol();
  std::string text(LEGEND);
  text += printMessages("MESSAGES FROM SERVERS", schema.messages());
  text += printMessages("REQUESTS TO SERVERS", schema.requests());
  text += "\nRECORDS\n";
  for (const auto& [name, record] : schema.records())
    text.append("\n").append(name).append("\n").append(linesOf(record));
  text += "\nTYPE STRINGS\n\n";
  for (const auto& [typeString, record] : typeStringsOf(schema)) text += fieldLine(record, typeString);
  return text;
}

}  // namespace Tessel
