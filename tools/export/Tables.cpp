#include "Tables.h"

#include <algorithm>

namespace Tessel {

namespace {

// The tables that are no message's.
constexpr std::string_view OTHER_TABLES[] = {"packets", "meta", "value_names"};

// SQL takes two names for the same that differ in their case alone.
std::string inLowerCase(std::string name) {
  for (char& c : name)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return name;
}

bool hasColumn(const Table& table, const std::string& name) {
  return std::ranges::any_of(table.columns,
                             [&](const Column& column) { return inLowerCase(column.name) == inLowerCase(name); });
}

std::string quoted(std::string_view name) {
  std::string text = "\"";
  for (const char c : name) text.append(c == '"' ? 2 : 1, c);
  return text += '"';
}

std::string reference(std::string_view table, std::string_view column) {
  return "INTEGER NOT NULL REFERENCES " + quoted(table) + "(" + quoted(column) + ")";
}

void addKeys(Table& table) {
  if (table.owner == nullptr) {
    table.columns = {{"packet_id", "INTEGER PRIMARY KEY REFERENCES packets(packet_id)"}};
    return;
  }
  const std::string_view ofPacket = table.namesOwner() ? "packets" : std::string_view(table.owner->name);
  table.columns = {{"row_id", "INTEGER PRIMARY KEY"}, {"packet_id", reference(ofPacket, "packet_id")}};
  if (table.namesOwner()) table.columns.push_back({"owner_id", reference(table.owner->name, "row_id")});
  if (table.isTree) {
    table.columns.push_back({"parent_id", "INTEGER REFERENCES " + quoted(table.name) + "(row_id)"});
    table.columns.push_back({"parent_field", "TEXT"});
  }
  table.columns.push_back({"item_index", "INTEGER NOT NULL"});
}

using Seen = std::set<const RecordSchema*>;

bool reaches(std::span<const FieldSchema> fields, const RecordSchema& record, Seen& seen) {
  return std::ranges::any_of(fields, [&](const FieldSchema& field) {
    if (field.kind == FieldKind::LIST) return reaches(field.items, record, seen);
    if (field.kind != FieldKind::RECORD) return false;
    if (field.record == &record) return true;
    return seen.insert(field.record).second && reaches(field.record->fields, record, seen);
  });
}

// Whether a record may hold others of its own class.
bool isTree(const RecordSchema& record) {
  Seen seen;
  return reaches(record.fields, record, seen);
}

std::string definitionOf(const Table& table) {
  std::string sql = "CREATE TABLE " + quoted(table.name) + " (";
  for (const Column& column : table.columns) {
    if (&column != &table.columns.front()) sql += ", ";
    sql += quoted(column.name) + " " + column.type;
  }
  sql += ");\n";
  if (table.owner == nullptr) return sql;
  for (const Column& column : table.columns) {
    if (column.name == "item_index") break;
    if (column.name == "row_id" || column.name == "parent_field") continue;
    sql += "CREATE INDEX " + quoted(table.name + "(" + column.name + ")") + " ON " + quoted(table.name) + "("
           + quoted(column.name) + ", item_index);\n";
  }
  return sql;
}

}  // namespace

Tables::Tables(const Schema& schema) {
  for (const std::string_view name : OTHER_TABLES) tableNames_.emplace(name);
  for (const auto messages : {schema.messages(), schema.requests()}) {
    for (const MessageSchema& message : messages) {
      if (message.body == nullptr || messages_.contains(message.body->name)) continue;
      messages_[message.body->name] =
          &addRecord(addTable(message.body->name, nullptr, false), message.body->fields, {});
    }
  }
}

Table& Tables::addTable(const std::string& name, const Table* owner, bool isTree) {
  std::string unique = name;
  while (!tableNames_.insert(inLowerCase(unique)).second) unique += '_';
  Table& table = tables_.emplace_back(Table{.name = unique, .index = tables_.size(), .owner = owner, .isTree = isTree});
  addKeys(table);
  return table;
}

std::size_t Tables::addColumn(Table& table, const std::string& name, std::string type, const Place& place) {
  std::string unique = place.prefix + name;
  while (hasColumn(table, unique)) unique += '_';
  if (!place.isOptional) type += " NOT NULL";
  if (type.starts_with("BOOLEAN")) type.replace(0, 7, "INTEGER CHECK (" + quoted(unique) + " IN (0, 1))");
  table.columns.push_back({std::move(unique), std::move(type)});
  return table.columns.size() - 1;
}

RecordColumns& Tables::addRecord(Table& table, std::span<const FieldSchema> fields, const Place& place) {
  RecordColumns& record = records_.emplace_back(RecordColumns{.table = &table, .isRow = place.isRow});
  for (const FieldSchema& field : fields) record.fields.push_back(fieldOf(table, field, place));
  return record;
}

FieldColumns Tables::fieldOf(Table& table, const FieldSchema& field, const Place& place) {
  FieldColumns columns{.field = &field};
  const Place own{place.prefix, place.isOptional || field.condition.has_value()};
  const std::string child = table.name + "_" + place.prefix + field.name;
  switch (field.kind) {
    case FieldKind::NUMBER:
      columns.column = addColumn(table, field.name, field.type == WireType::BOOL ? "BOOLEAN" : "INTEGER", own);
      break;
    case FieldKind::TEXT:
      columns.column = addColumn(table, field.name, "TEXT", own);
      break;
    case FieldKind::RECORD:
      columns.record = isTree(*field.record) ? treeOf(table, child, *field.record)
                                             : &addRecord(table, field.record->fields,
                                                          {place.prefix + field.name + "_", own.isOptional, false});
      break;
    case FieldKind::LIST:
      columns.column = addColumn(table, field.name + "_count", "INTEGER", own);
      for (const FieldSchema& item : field.items)
        columns.items.push_back(itemOf(table, field.tagField ? child + "_" + item.record->name : child, item));
      break;
  }
  return columns;
}

// The nodes below a node stand in the table of that one.
const RecordColumns* Tables::treeOf(Table& owner, const std::string& name, const RecordSchema& record) {
  if (const auto open = openTrees_.find(&record); open != openTrees_.end()) return open->second;
  Table& table = addTable(name, &owner, true);
  RecordColumns& tree = records_.emplace_back(RecordColumns{.table = &table, .isRow = true});
  openTrees_[&record] = &tree;
  for (const FieldSchema& field : record.fields) tree.fields.push_back(fieldOf(table, field, {}));
  openTrees_.erase(&record);
  return &tree;
}

const RecordColumns* Tables::itemOf(Table& owner, const std::string& name, const FieldSchema& item) {
  if (item.kind == FieldKind::RECORD && isTree(*item.record)) return treeOf(owner, name, *item.record);
  Table& table = addTable(name, &owner, false);
  if (item.kind == FieldKind::RECORD) return &addRecord(table, item.record->fields, {});
  return &addRecord(table, {&item, 1}, {.prefix = "value"});
}

std::string Tables::definitions() const {
  std::string sql;
  for (const Table& table : tables_) sql += definitionOf(table);
  return sql;
}

std::string Tables::insertion(const Table& table) {
  std::string sql = "INSERT INTO " + quoted(table.name) + " VALUES (?";
  for (std::size_t i = 1; i < table.columns.size(); ++i) sql += ", ?";
  return sql + ")";
}

std::vector<Tables::ValueName> Tables::valueNames() const {
  std::vector<ValueName> names;
  for (const RecordColumns& record : records_) {
    for (const FieldColumns& place : record.fields) {
      for (const auto& [value, name] : place.field->valueNames)
        names.push_back({record.table->name, record.table->columns[place.column].name, value, name});
    }
  }
  return names;
}

}  // namespace Tessel
