#include "RowWriter.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Tessel {

namespace {

// The schema was read off the same layouts.
[[noreturn]] void throwUntold(std::string_view what) {
  throw std::logic_error("no layout tells of the field or class \"" + std::string(what) + '"');
}

}  // namespace

RowWriter::RowWriter(const Tables& tables, Database& database, Secrets secrets)
    : tables_(tables), database_(database), secrets_(secrets), statements_(tables.all().size()),
      counts_(tables.all().size()) {}

void RowWriter::write(std::int64_t packet, Inspectable object) {
  packet_ = packet;
  const RecordColumns& record = tables_.ofMessage(object.className());
  openRow(record, 0, "");
  open_.push_back({.record = &record, .list = nullptr});
  object.describe(*this);
  endRecord();
}

void RowWriter::number(std::string_view name, WireType, std::int64_t value) { set(name, value); }

void RowWriter::text(std::string_view name, std::string_view utf8, bool secret) {
  set(name, std::string(secret && secrets_ == Secrets::MASKED ? SECRET_MASK : utf8));
}

bool RowWriter::beginRecord(std::string_view name, std::string_view type) {
  const FieldColumns* list = open_.back().list;
  const RecordColumns& record = list != nullptr ? itemOf(*list, type) : *find(name).record;
  if (list != nullptr)
    openItem(record);
  else if (record.isRow)
    openRow(record, 0, name);
  open_.push_back({.record = &record, .list = nullptr});
  return true;
}

void RowWriter::endRecord() {
  const bool isRow = open_.back().record->isRow;
  open_.pop_back();
  if (isRow) finishRow();
}

void RowWriter::beginList(std::string_view name, WireType, std::int64_t count) {
  const FieldColumns& list = find(name);
  rows_.back().values[list.column] = count;
  open_.push_back({.record = nullptr, .list = &list});
}

const FieldColumns& RowWriter::find(std::string_view name) {
  Open& open = open_.back();
  const std::vector<FieldColumns>& fields = open.record->fields;
  // One whose condition does not hold is not told.
  while (open.next < fields.size() && fields[open.next].field->name != name) ++open.next;
  if (open.next == fields.size()) throwUntold(name);
  return fields[open.next++];
}

const RecordColumns& RowWriter::itemOf(const FieldColumns& list, std::string_view type) const {
  const std::vector<FieldSchema>& items = list.field->items;
  const auto item = std::ranges::find_if(
      items, [type](const FieldSchema& schema) { return schema.record != nullptr && schema.record->name == type; });
  if (item == items.end()) throwUntold(type);
  return *list.items[static_cast<std::size_t>(item - items.begin())];
}

void RowWriter::set(std::string_view name, Value value) {
  const FieldColumns* list = open_.back().list;
  if (list == nullptr) {
    rows_.back().values[find(name).column] = std::move(value);
    return;
  }
  const RecordColumns& item = *list->items.front();
  openItem(item);
  rows_.back().values[item.fields.front().column] = std::move(value);
  finishRow();
}

void RowWriter::openItem(const RecordColumns& record) {
  Open& list = open_.back();
  openRow(record, list.next++, list.list->field->name);
}

void RowWriter::openRow(const RecordColumns& record, std::size_t index, std::string_view field) {
  const Table& table = *record.table;
  Row row{.table = &table, .id = table.owner != nullptr ? ++counts_[table.index] : packet_, .values = {}};
  row.values.reserve(table.columns.size());
  row.values.emplace_back(row.id);
  if (table.owner != nullptr) row.values.emplace_back(packet_);
  if (table.namesOwner()) row.values.emplace_back(innermost(table.owner)->id);
  if (table.isTree) {
    if (const Row* parent = innermost(&table)) {
      row.values.emplace_back(parent->id);
      row.values.emplace_back(std::string(field));
    } else {
      row.values.resize(row.values.size() + 2);
    }
  }
  if (table.owner != nullptr) row.values.emplace_back(static_cast<std::int64_t>(index));
  row.values.resize(table.columns.size());
  rows_.push_back(std::move(row));
}

void RowWriter::finishRow() {
  const Row row = std::move(rows_.back());
  rows_.pop_back();
  Statement& statement = insertionInto(*row.table);
  int index = 0;
  for (const Value& value : row.values) {
    ++index;
    if (const auto* number = std::get_if<std::int64_t>(&value))
      statement.bind(index, *number);
    else if (const auto* text = std::get_if<std::string>(&value))
      statement.bind(index, std::string_view(*text));
    else
      statement.bindNull(index);
  }
  statement.run();
}

Statement& RowWriter::insertionInto(const Table& table) {
  std::optional<Statement>& statement = statements_[table.index];
  if (!statement) statement = database_.prepare(Tables::insertion(table));
  return *statement;
}

const RowWriter::Row* RowWriter::innermost(const Table* table) const {
  const auto row = std::ranges::find(rows_.rbegin(), rows_.rend(), table, &Row::table);
  return row != rows_.rend() ? &*row : nullptr;
}

}  // namespace Tessel
