#pragma once
#include <herald/platform/keystone/Export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace Tessel {

/// What a `FieldSource` holds for a field.
struct FieldValue {
  enum class Kind {
    MISSING,
    NUMBER,
    FLAG,
    TEXT,
    RECORD,
    LIST,
    OTHER,  ///< Nothing that a field could be.
  };

  Kind kind = Kind::MISSING;
  /// The number; 0 or 1 for a flag; how many items a list has.
  std::int64_t number = 0;
  /// The text, in UTF-8; the value as its source spells it, for OTHER. Valid until the record that holds it is left.
  std::string_view text{};
};

/// Gives the fields of a message, request or record, as a `FieldSink` is told them: what JSON or another notation
/// stands in.
class HERALD_API FieldSource {
 public:
  virtual ~FieldSource();

  /// The field of that name of the record in which the source stands. Not always in wire order.
  virtual FieldValue find(std::string_view name) = 0;
  /// The next item of the list in which the source stands; MISSING behind the last.
  virtual FieldValue next() = 0;

  /// Into the record or list that `find` or `next` answered last.
  virtual void enter() = 0;
  /// Out of the record or list. Answers a field of the record that `find` was not asked for; empty when there is none.
  virtual std::string leave() = 0;
};

}  // namespace Tessel
