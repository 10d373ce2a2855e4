#pragma once
#include <herald/platform/keystone/Export.h>

#include <cstdint>
#include <span>
#include <string_view>

namespace Tessel {

struct Condition;

/// How a value travels. NONE is the count of a list that the bytes do not carry: an earlier field gives it.
enum class WireType : std::uint8_t { NONE, BOOL, BYTE, SHORT, INT, INT64, STRING };

/// The bytes that a number of this type takes; 0 for NONE and STRING.
constexpr int widthOf(WireType type) {
  switch (type) {
    case WireType::BOOL:
    case WireType::BYTE:
      return 1;
    case WireType::SHORT:
      return 2;
    case WireType::INT:
      return 4;
    case WireType::INT64:
      return 8;
    default:
      return 0;
  }
}

/// Is told every field of a message or record in wire order (`describe`). Names and texts are valid during the call
/// only. The fields of an array have empty names.
class HERALD_API FieldSink {
 public:
  virtual ~FieldSink();

  /// A bool comes as 0 or 1.
  virtual void number(std::string_view name, WireType type, std::int64_t value) = 0;
  /// The same, for a number whose values have names; empty for a value without one. A sink may leave the name out.
  virtual void namedNumber(std::string_view name, WireType type, std::int64_t value, std::string_view valueName);
  /// A secret text, such as a password, is not for logs and listings.
  virtual void text(std::string_view name, std::string_view utf8, bool secret) = 0;

  /// A nested record; its fields follow only when the answer is true, `endRecord` in any case.
  virtual bool beginRecord(std::string_view name, std::string_view type) = 0;
  virtual void endRecord() = 0;

  /// A list: its count, the type in which the count travels, then the items. A count below zero has no items.
  virtual void beginList(std::string_view name, WireType countType, std::int64_t count) = 0;
  virtual void endList() = 0;

  /// A field that travels only under a condition on earlier fields; it follows only when it is present.
  virtual void beginConditional(bool present) = 0;
  virtual void endConditional() = 0;

  /// A sink that answers true is told the layout instead of the values: one item per list, and every conditional field,
  /// with their starting values, and the rules below, each before what it is about.
  virtual bool wantsLayout() const { return false; }

  /// The values of the next number have these names, `first` and those behind it; empty for a value without one.
  virtual void valuesNamed(std::int64_t, std::span<const std::string_view>) {}
  /// The next conditional part travels under this condition.
  virtual void underCondition(const Condition&) {}
  /// The next list has as many items as the earlier field of this name says, or, if that is a list, has.
  virtual void countedBy(std::string_view) {}
  /// The items of the next list are of the class that the earlier text of this name says: the list is told one of each
  /// class, named by that text.
  virtual void taggedBy(std::string_view) {}
};

}  // namespace Tessel
