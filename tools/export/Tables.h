#pragma once
#include <herald/inspect/Schema.h>

#include <cstddef>
#include <deque>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Tessel {

struct Column {
  std::string name;
  /// Its type and what must hold of its values, in SQL.
  std::string type;
};

/// A table of the messages or requests of a class, of the items of a list, or of the nodes of a tree: of records of a
/// class that holds itself.
struct Table {
  /// The packet of a message, the row of anything else.
  std::string_view key() const { return owner == nullptr ? "packet_id" : "row_id"; }
  /// Whether a packet alone does not tell which list an item is of.
  bool namesOwner() const { return owner != nullptr && owner->owner != nullptr; }

  std::string name;
  std::size_t index;
  /// Of the record that holds the list or tree; null for a message or request.
  const Table* owner;
  bool isTree;
  /// What identifies the row: packet_id; or row_id, packet_id, owner_id where it names the owner, parent_id and
  /// parent_field of a tree, item_index. Then the values.
  std::vector<Column> columns{};
};

struct RecordColumns;

/// Where the values of a field stand.
struct FieldColumns {
  const FieldSchema* field;
  /// Of a number, a text, or the count of a list.
  std::size_t column = 0;
  /// Of a record, in the same table or, for a tree, in one of its own.
  const RecordColumns* record = nullptr;
  /// Of the items of a list, one for each class that they may have. An item that is no record is the one field there.
  std::vector<const RecordColumns*> items{};
};

/// Where the fields of a record stand, in wire order.
struct RecordColumns {
  const Table* table;
  /// Whether each such record is a row, rather than a part of its holder's.
  bool isRow;
  std::vector<FieldColumns> fields{};
};

/// The tables for a protocol, and where in them each of its fields stands. The schema must outlive it.
class Tables {
 public:
  explicit Tables(const Schema& schema);
  Tables(const Tables&) = delete;
  Tables& operator=(const Tables&) = delete;

  /// Owners come before what they own.
  const std::deque<Table>& all() const { return tables_; }
  /// Of a message or request of the protocol.
  const RecordColumns& ofMessage(std::string_view className) const { return *messages_.find(className)->second; }

  /// The statements, each behind the other, that make all tables.
  std::string definitions() const;
  /// The statement that adds a row.
  static std::string insertion(const Table& table);

  struct ValueName {
    std::string_view table;
    std::string_view column;
    std::int64_t value;
    std::string_view name;
  };
  /// What the numbers in a column mean, where they have names.
  std::vector<ValueName> valueNames() const;

 private:
  // How the columns of a record begin, and whether they may be missing.
  struct Place {
    std::string prefix{};
    bool isOptional = false;
    bool isRow = true;
  };

  Table& addTable(const std::string& name, const Table* owner, bool isTree);
  std::size_t addColumn(Table& table, const std::string& name, std::string type, const Place& place);
  RecordColumns& addRecord(Table& table, std::span<const FieldSchema> fields, const Place& place);
  FieldColumns fieldOf(Table& table, const FieldSchema& field, const Place& place);
  const RecordColumns* treeOf(Table& owner, const std::string& name, const RecordSchema& record);
  const RecordColumns* itemOf(Table& owner, const std::string& name, const FieldSchema& item);

  std::set<std::string> tableNames_;
  std::deque<Table> tables_;
  std::deque<RecordColumns> records_;
  std::map<std::string_view, const RecordColumns*> messages_;
  // Those whose columns are being made.
  std::map<const RecordSchema*, const RecordColumns*> openTrees_;
};

}  // namespace Tessel
