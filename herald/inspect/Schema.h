#pragma once
#include <herald/inspect/FieldList.h>
#include <herald/platform/keystone/Export.h>
#include <herald/wire/FieldSink.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Tessel {

struct RecordSchema;

/// "bool", "byte", "short", "int", "int64" or "string"; empty for NONE.
HERALD_API std::string_view nameOf(WireType type);

/// When a field travels: an earlier number of the same record, seen through a mask, lies in a range.
struct FieldCondition {
  bool holdsFor(std::int64_t number) const { return (number & mask) >= first && (number & mask) <= last; }

  /// The index of the earlier field.
  std::size_t field;
  std::int64_t mask;
  std::int64_t first;
  std::int64_t last;
};

/// A field as a layout declares it.
struct FieldSchema {
  /// Empty for the item of a list; the type string for one of the classes of a tagged list.
  std::string name;
  FieldKind kind;
  /// How a number travels; STRING for a text; for a list its count, NONE where an earlier field gives it.
  WireType type = WireType::NONE;
  bool isSecret = false;
  /// The value of a new message: a flag's is 0 or 1. Those of a list are no items.
  std::int64_t startNumber = 0;
  std::string startText{};
  /// What values of a NUMBER mean, where they have names.
  std::map<std::int64_t, std::string> valueNames{};
  std::optional<FieldCondition> condition{};
  /// Of a RECORD; lives as long as its schema.
  const RecordSchema* record = nullptr;
  /// Of a LIST: one, or one for each class that a tagged list may have.
  std::vector<FieldSchema> items{};
  /// Of a LIST: the index of the earlier number that says how many items there are, or of the list that has as many.
  std::optional<std::size_t> countField{};
  /// Of a LIST: the index of the earlier text that says of which class all items are.
  std::optional<std::size_t> tagField{};
};

/// The fields of a record, or of the body of a message or request, in wire order.
struct RecordSchema {
  std::string name;
  std::vector<FieldSchema> fields{};
};

/// A message or request. Null for an id that creates nothing.
struct MessageSchema {
  int id;
  const RecordSchema* body;
};

/// The protocol as data, read off the layouts themselves. For what prints or follows layouts at run time; what is known
/// at compile time uses the classes.
class HERALD_API Schema {
 public:
  using Records = std::map<std::string, RecordSchema, std::less<>>;

  /// Made at the first call, safely from several threads.
  static const Schema& ofProtocol();

  /// By id, in ascending order.
  std::span<const MessageSchema> messages() const { return messages_; }
  std::span<const MessageSchema> requests() const { return requests_; }
  /// The records that messages and requests reach, by their names.
  const Records& records() const { return records_; }

  /// The message, request or record of that class; null when there is none.
  const RecordSchema* find(std::string_view className) const;

 private:
  Schema();

  Records records_;
  Records bodies_;
  std::vector<MessageSchema> messages_;
  std::vector<MessageSchema> requests_;
};

}  // namespace Tessel
