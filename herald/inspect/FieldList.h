#pragma once
#include <herald/inspect/Inspectable.h>
#include <herald/wire/FieldSink.h>

#include <cstddef>
#include <limits>
#include <vector>

namespace Tessel {

enum class FieldKind { NUMBER, TEXT, RECORD, LIST };

/// A field of a message, request or record.
struct Field {
  static constexpr std::size_t NO_PARENT = std::numeric_limits<std::size_t>::max();

  /// The name within its record, or "[3]" for the item 3 of a list.
  std::string name;
  FieldKind kind;
  /// How the field travels: for a list its count, for a record NONE.
  WireType type;
  /// The number in decimal ("true" or "false" for a flag), the text in UTF-8, the class of a record, the count of a
  /// list.
  std::string value;
  /// What the number means, where its values have names, such as "SAT_DOWN"; empty otherwise.
  std::string valueName{};
  /// The index of the record or list that holds it; NO_PARENT at the outermost level.
  std::size_t parent;
};

/// The fields of a message, request or record, in wire order; those of a nested record or list follow its own. A field
/// that did not travel is left out.
class HERALD_API FieldList {
 public:
  explicit FieldList(Inspectable object, Secrets secrets = Secrets::MASKED);

  std::size_t size() const { return fields_.size(); }
  const Field& operator[](std::size_t index) const { return fields_[index]; }
  auto begin() const { return fields_.begin(); }
  auto end() const { return fields_.end(); }

  /// Where the field of that index stands, such as "players[3].nickName". Made when asked: in a deeply nested message
  /// the paths of all fields together would take the square of its size.
  std::string pathOf(std::size_t index) const;

 private:
  std::vector<Field> fields_;
};

}  // namespace Tessel
