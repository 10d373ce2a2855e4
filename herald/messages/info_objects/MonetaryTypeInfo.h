#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A kind of money, such as real money or play money.
class HERALD_API MonetaryTypeInfo : public PlainRecord<MonetaryTypeInfo> {
 public:
  MonetaryTypeInfo() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit MonetaryTypeInfo(ByteStream& in);

  std::wstring getId() const { return id_.getString(); }
  std::wstring getName() const { return name_.getString(); }
  bool isFree() const { return (properties_ & IS_FREE) != 0; }
  bool isRefillable() const { return (properties_ & IS_ALWAYS_REFILLABLE) != 0; }
  bool isReal() const { return (properties_ & IS_REAL) != 0; }
  /// The mask of which the three operations above answer one bit each.
  int getProperties() const { return properties_; }
  int getSortingPriority() const { return sortingPriority_; }

  std::wstring toDebugString() const;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("id", self.id_);
    fields("name", self.name_);
    fields("properties", self.properties_);
    fields("sortingPriority", self.sortingPriority_);
  }

 private:
  static constexpr char IS_FREE = 1;
  static constexpr char IS_ALWAYS_REFILLABLE = 2;
  static constexpr char IS_REAL = 4;

  Text id_;
  Text name_;
  std::int8_t properties_ = 0;
  std::int8_t sortingPriority_ = -1;
};

}  // namespace Tessel
