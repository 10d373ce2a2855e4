#include <herald/inspect/Json.h>

#include <limits>
#include <map>
#include <set>

#include "Printing.h"
#include "Schemas.h"

namespace Tessel {

namespace {

// What every line may have; its class says more of some members.
constexpr std::string_view LINE = R"({
  "$schema": "https://json-schema.org/draft/2020-12/schema",
  "title": "A line of herald decode --json",
  "description": "A packet of a capture and the message or request that it holds. Numbers of the type int64 may be larger than what a double holds exactly.",
  "type": "object",
  "properties": {
    "file": {"type": "string"},
    "packet": {"type": "integer", "minimum": 1},
    "time": {"type": "string", "format": "date-time"},
    "direction": {"enum": ["fromServer", "toServer"]},
    "id": {"$ref": "#/$defs/short"},
    "class": {"type": ["string", "null"]},
    "outcome": {"enum": ["decoded", "readAnsweredFalse", "noMessage", "unknownId", "readThrew"]},
    "bytesRead": {"type": "integer", "minimum": 0},
    "bytes": {"type": "integer", "minimum": 0},
    "reason": {"type": "string"},
    "message": {"type": ["object", "null"]},
    "hex": {"type": "string", "description": "The body of what its fields alone do not tell"}
  },
  "required": ["packet", "time", "direction", "id", "class", "outcome", "bytesRead", "bytes", "message"],
  "additionalProperties": false,
)";

// Members of an object, or elements of an array, one a line.
std::string joined(const std::vector<std::string>& parts, std::string_view between = ",\n") {
  std::string text;
  for (const std::string& part : parts) {
    if (!text.empty()) text += between;
    text += part;
  }
  return text;
}

std::string member(std::string_view name, std::string_view value) {
  return toJsonString(name) + ": " + std::string(value);
}

std::string object(const std::vector<std::string>& members) { return "{" + joined(members, ", ") + "}"; }

std::string reference(std::string_view definition) {
  return object({member("$ref", toJsonString("#/$defs/" + std::string(definition)))});
}

std::string typeOf(const FieldSchema& field);

std::int64_t largestOf(WireType type) {
  switch (type) {
    case WireType::BYTE:
      return std::numeric_limits<std::int8_t>::max();
    case WireType::SHORT:
      return std::numeric_limits<std::int16_t>::max();
    case WireType::INT:
      return std::numeric_limits<std::int32_t>::max();
    case WireType::INT64:
      return std::numeric_limits<std::int64_t>::max();
    default:
      return 1;
  }
}

std::string listOf(const FieldSchema& list) {
  std::vector<std::string> items;
  for (const FieldSchema& item : list.items) items.push_back(typeOf(item));
  std::vector<std::string> members{
      member("type", "\"array\""),
      member("items", list.tagField ? object({member("anyOf", "[" + joined(items, ", ") + "]")}) : items.front())};
  if (list.type != WireType::NONE) members.push_back(member("maxItems", std::to_string(largestOf(list.type))));
  return object(members);
}

std::string typeOf(const FieldSchema& field) {
  switch (field.kind) {
    case FieldKind::NUMBER:
      return reference(nameOf(field.type));
    case FieldKind::TEXT:
      return reference(field.isSecret ? "secret" : "string");
    case FieldKind::RECORD:
      return reference(field.record->name);
    case FieldKind::LIST:
      break;
  }
  return listOf(field);
}

std::string ifThen(const std::string& condition, const std::string& consequence, const std::string& otherwise = "") {
  std::vector<std::string> members{member("if", condition), member("then", consequence)};
  if (!otherwise.empty()) members.push_back(member("else", otherwise));
  return object(members);
}

std::string withProperty(std::string_view name, const std::string& value) {
  return object({member("properties", object({member(name, value)}))});
}

// What a JSON schema can say of a condition: that a number, or a flag, lies in a range, but nothing of its bits.
std::string conditionOf(const FieldSchema& conditional, const RecordSchema& record) {
  const FieldCondition& condition = *conditional.condition;
  const FieldSchema& field = record.fields[condition.field];
  std::string range;
  if (field.type == WireType::BOOL)
    range = object({member("const", condition.holdsFor(1) ? "true" : "false")});
  else if (condition.mask == -1)
    range =
        object({member("minimum", std::to_string(condition.first)), member("maximum", std::to_string(condition.last))});
  else
    return "";
  return ifThen(withProperty(field.name, range),
                object({member("required", "[" + toJsonString(conditional.name) + "]")}),
                withProperty(conditional.name, "false"));
}

void addTagRules(const FieldSchema& list, const RecordSchema& record, std::vector<std::string>& rules) {
  const std::string& tag = record.fields[*list.tagField].name;
  std::vector<std::string> known;
  for (const FieldSchema& item : list.items) {
    known.push_back(toJsonString(item.name));
    rules.push_back(ifThen(withProperty(tag, object({member("const", known.back())})),
                           withProperty(list.name, object({member("items", typeOf(item))}))));
  }
  rules.push_back(ifThen(withProperty(tag, object({member("enum", "[" + joined(known, ", ") + "]")})), "true",
                         withProperty(list.name, object({member("maxItems", "0")}))));
}

std::vector<std::string> rulesOf(const RecordSchema& record) {
  std::vector<std::string> rules;
  for (const FieldSchema& field : record.fields) {
    if (field.tagField) addTagRules(field, record, rules);
    if (!field.condition) continue;
    if (std::string rule = conditionOf(field, record); !rule.empty()) rules.push_back(std::move(rule));
  }
  return rules;
}

// As what a message or request is defined; one class is a message and, in another message, a record.
std::string messageName(std::string_view className) { return "message." + std::string(className); }

enum class Holder { MESSAGE, RECORD };

std::string definitionOf(const RecordSchema& record, Holder holder) {
  std::vector<std::string> properties;
  std::vector<std::string> required;
  if (holder == Holder::MESSAGE) {
    properties.push_back("        " + member("class", object({member("const", toJsonString(record.name))})));
    required.emplace_back("\"class\"");
  }
  for (const FieldSchema& field : record.fields) {
    properties.push_back("        " + member(field.name, typeOf(field)));
    if (!field.condition) required.push_back(toJsonString(field.name));
  }
  const std::string name = holder == Holder::MESSAGE ? messageName(record.name) : record.name;
  std::string text = "    " + toJsonString(name) + ": {\n      \"type\": \"object\",\n      \"properties\": {\n"
                     + joined(properties) + "\n      },\n      \"required\": [" + joined(required, ", ")
                     + "],\n      \"additionalProperties\": false";
  std::vector<std::string> rules = rulesOf(record);
  for (std::string& rule : rules) rule.insert(0, "        ");
  if (!rules.empty()) text += ",\n      \"allOf\": [\n" + joined(rules) + "\n      ]";
  return text + "\n    }";
}

std::vector<std::string> definitionsOf(const Schema& schema) {
  std::vector<std::string> definitions{
      R"(    "bool": {"type": "boolean"})", R"(    "string": {"type": "string", "maxLength": 65535})",
      R"(    "secret": {"type": "string", "maxLength": 65535, "description": "*** unless secrets are asked for"})"};
  for (const WireType type : {WireType::BYTE, WireType::SHORT, WireType::INT, WireType::INT64}) {
    const std::int64_t largest = largestOf(type);
    definitions.push_back(
        "    "
        + member(nameOf(type), object({member("type", "\"integer\""), member("minimum", std::to_string(-largest - 1)),
                                       member("maximum", std::to_string(largest))})));
  }
  for (const auto messages : {schema.messages(), schema.requests()}) {
    for (const auto& [name, body] : bodiesOf(messages)) definitions.push_back(definitionOf(*body, Holder::MESSAGE));
  }
  for (const auto& [name, record] : schema.records()) definitions.push_back(definitionOf(record, Holder::RECORD));
  return definitions;
}

// What follows for a line from its class.
void addClassRules(std::span<const MessageSchema> messages, std::string_view direction,
                   std::vector<std::string>& rules) {
  std::map<std::string_view, std::vector<std::string>> ids;
  for (const MessageSchema& message : messages) {
    if (message.body != nullptr) ids[message.body->name].push_back(std::to_string(message.id));
  }
  for (const auto& [name, ofClass] : ids) {
    const std::string consequence = object({member(
        "properties",
        object({member("direction", object({member("const", toJsonString(direction))})),
                member("id", object({member("enum", "[" + joined(ofClass, ", ") + "]")})),
                member("message",
                       object({member("anyOf", R"([{"type": "null"}, )" + reference(messageName(name)) + "]")}))}))});
    rules.push_back("    " + ifThen(withProperty("class", object({member("const", toJsonString(name))})), consequence));
  }
}

std::string classesOf(const Schema& schema) {
  std::vector<std::string> names{"null"};
  for (const auto messages : {schema.messages(), schema.requests()}) {
    for (const auto& [name, body] : bodiesOf(messages)) names.push_back(toJsonString(name));
  }
  return "[" + joined(names, ", ") + "]";
}

}  // namespace

std::string jsonSchema(const Schema& schema) {
  std::vector<std::string> rules{
      "    " + withProperty("class", object({member("enum", classesOf(schema))})),
      "    " + ifThen(withProperty("class", R"({"type": "null"})"), withProperty("message", R"({"type": "null"})"))};
  addClassRules(schema.messages(), "fromServer", rules);
  addClassRules(schema.requests(), "toServer", rules);
  return std::string(LINE) + "  \"allOf\": [\n" + joined(rules) + "\n  ],\n  \"$defs\": {\n"
         + joined(definitionsOf(schema)) + "\n  }\n}\n";
}

}  // namespace Tessel
