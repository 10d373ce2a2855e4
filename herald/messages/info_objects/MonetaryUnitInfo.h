#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A monetary unit: its type and the currency in which it is shown.
class HERALD_API MonetaryUnitInfo : public PlainRecord<MonetaryUnitInfo> {
 public:
  MonetaryUnitInfo() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit MonetaryUnitInfo(ByteStream& in);

  int getId() const { return id_; }
  std::wstring getMonetaryTypeId() const { return monetaryTypeId_.getString(); }
  std::wstring getCurrencyId() const { return currencyId_.getString(); }

  std::wstring toDebugString() const;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("id", self.id_);
    fields("monetaryTypeId", self.monetaryTypeId_);
    fields("currencyId", self.currencyId_);
  }

 private:
  std::int16_t id_ = -1;
  Text monetaryTypeId_;
  Text currencyId_;
};

}  // namespace Tessel
