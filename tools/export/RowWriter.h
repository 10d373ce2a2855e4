#pragma once
#include <herald/inspect/Inspectable.h>
#include <herald/wire/FieldSink.h>

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Database.h"
#include "Tables.h"

namespace Tessel {

/// Writes messages and requests as rows of their tables: it is told their fields.
class RowWriter final : public FieldSink {
 public:
  /// Both must outlive it.
  RowWriter(const Tables& tables, Database& database, Secrets secrets);

  /// Adds the rows of a message or request of a packet. Throws `DatabaseError`.
  void write(std::int64_t packet, Inspectable object);

  void number(std::string_view name, WireType type, std::int64_t value) override;
  void text(std::string_view name, std::string_view utf8, bool secret) override;
  bool beginRecord(std::string_view name, std::string_view type) override;
  void endRecord() override;
  void beginList(std::string_view name, WireType countType, std::int64_t count) override;
  void endList() override { open_.pop_back(); }
  void beginConditional(bool) override {}
  void endConditional() override {}

 private:
  using Value = std::variant<std::monostate, std::int64_t, std::string>;

  struct Row {
    const Table* table;
    std::int64_t id;
    std::vector<Value> values;
  };

  // A record or a list.
  struct Open {
    const RecordColumns* record = nullptr;
    const FieldColumns* list = nullptr;
    // The field of the record that comes next, or the index of the list's next item.
    std::size_t next = 0;
  };

  const FieldColumns& find(std::string_view name);
  const RecordColumns& itemOf(const FieldColumns& list, std::string_view type) const;
  void set(std::string_view name, Value value);
  void openItem(const RecordColumns& record);
  void openRow(const RecordColumns& record, std::size_t index, std::string_view field);
  void finishRow();
  Statement& insertionInto(const Table& table);
  // The innermost row of that table that is being made.
  const Row* innermost(const Table* table) const;

  const Tables& tables_;
  Database& database_;
  Secrets secrets_;
  std::vector<std::optional<Statement>> statements_;
  // By table, how many rows it has.
  std::vector<std::int64_t> counts_;
  std::int64_t packet_ = 0;
  std::vector<Open> open_;
  std::vector<Row> rows_;
};

}  // namespace Tessel
