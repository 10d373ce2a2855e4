#include "Printing.h"
#include "Schemas.h"

namespace Tessel {

namespace {

constexpr std::string_view HEAD =
    R"(-- A dissector of Herald's protocol for Wireshark and tshark, printed from the layouts of its messages. Put it into the
-- folder of personal Lua plugins, or name it: tshark -X lua_script:herald.lua -r session.pcap
--
-- The fields of a message are herald.CLASS.FIELD, those of records in it herald.CLASS.FIELD.FIELD; a message that is one
-- record has the record's fields as its own. The count of a list is FIELD_count. A record that may hold itself, or whose
-- class the bytes name, has its fields under its own class. For example
--   herald.ClientBetDone.amount > 2500
--   herald.ClientWin.pots_count > 1 && herald.ClientWin.pots.credit.seat == 3

)";

constexpr std::string_view RUNTIME =
#include "dissector.lua.inc"
    ;

std::string quoted(std::string_view text) {
  std::string literal = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') literal += '\\';
    literal += c;
  }
  return literal + '"';
}

std::string entry(std::string_view key, std::string_view value) {
  return std::string(key) + " = " + std::string(value);
}

std::string whenOf(const FieldCondition& condition, const RecordSchema& record) {
  return ", when = {" + entry("field", quoted(record.fields[condition.field].name)) + ", "
         + entry("mask", std::to_string(condition.mask)) + ", " + entry("first", std::to_string(condition.first)) + ", "
         + entry("last", std::to_string(condition.last)) + "}";
}

std::string typeOf(const FieldSchema& field, const RecordSchema& record);

std::string itemsOf(const FieldSchema& list, const RecordSchema& record) {
  if (!list.tagField) return "item = {" + typeOf(list.items.front(), record) + "}";
  std::string items;
  for (const FieldSchema& item : list.items)
    items += "\n      [" + quoted(item.name) + "] = {" + typeOf(item, record) + "},";
  return entry("class_from", quoted(record.fields[*list.tagField].name)) + ", items = {" + items + "\n    }";
}

std::string valuesOf(const FieldSchema& field) {
  if (field.valueNames.empty()) return "";
  std::string values;
  for (const auto& [value, name] : field.valueNames)
    values += (values.empty() ? "[" : ", [") + std::to_string(value) + "] = " + quoted(name);
  return ", values = {" + values + "}";
}

std::string typeOf(const FieldSchema& field, const RecordSchema& record) {
  switch (field.kind) {
    case FieldKind::RECORD:
      return entry("type", quoted("record")) + ", " + entry("record", quoted(field.record->name));
    case FieldKind::LIST:
      return entry("type", quoted("list")) + ", "
             + (field.countField ? entry("count_from", quoted(record.fields[*field.countField].name))
                                 : entry("count", quoted(nameOf(field.type))))
             + ", " + itemsOf(field, record);
    default:
      return entry("type", quoted(nameOf(field.type))) + (field.isSecret ? ", secret = true" : "") + valuesOf(field);
  }
}

std::string tableOf(const RecordSchema& record) {
  std::string table = "  [" + quoted(record.name) + "] = {";
  for (const FieldSchema& field : record.fields) {
    table += "\n    {" + entry("name", quoted(field.name)) + ", " + typeOf(field, record)
             + (field.condition ? whenOf(*field.condition, record) : "") + "},";
  }
  return table + (record.fields.empty() ? "},\n" : "\n  },\n");
}

std::string idTable(std::string_view name, std::span<const MessageSchema> messages) {
  std::string table = "local " + std::string(name) + " = {\n";
  for (const MessageSchema& message : messages) {
    table += "  [" + std::to_string(message.id)
             + "] = " + (message.body != nullptr ? quoted(message.body->name) : "false") + ",\n";
  }
  return table + "}\n\n";
}

}  // namespace

std::string wiresharkSchema(const Schema& schema) {
  std::string text(HEAD);
  text += "-- The classes of the ids that servers send; false for an id that creates no message.\n";
  text += idTable("messages", schema.messages());
  text += "-- The classes of the ids that clients send.\n";
  text += idTable("requests", schema.requests());
  text += "-- The fields of messages and requests in wire order.\nlocal bodies = {\n";
  for (const auto messages : {schema.messages(), schema.requests()}) {
    for (const auto& [name, body] : bodiesOf(messages)) text += tableOf(*body);
  }
  text += "}\n\n-- The fields of records in wire order.\nlocal records = {\n";
  for (const auto& [name, record] : schema.records()) text += tableOf(record);
  return text.append("}\n\n").append(RUNTIME);
}

}  // namespace Tessel
