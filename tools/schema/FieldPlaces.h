#pragma once
#include <herald/inspect/Schema.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Tessel {

/// Where a number or a text, or the count of a list, stands in a body.
struct FieldPlace {
  /// From the body on, as in "pots[0].credit.amount"; that of a count is its list's.
  std::string path;
  const FieldSchema* field;
  /// In bytes from the beginning of the body.
  std::size_t begin;
  std::size_t end;
  /// A number in decimal, a flag as true or false, a text as UTF-8.
  std::string value;
};

/// The fields of a body in wire order. Nothing when the body ends within them, or is deeper than 64 records in records.
/// The places keep pointers to the schema.
std::optional<std::vector<FieldPlace>> placesOfFields(const RecordSchema& schema, std::span<const std::uint8_t> body);

}  // namespace Tessel
