#pragma once
#include <herald/messages/info_objects/AmountInfo.h>
#include <herald/platform/keystone/Money.h>

namespace Tessel {

/// An amount with the monetary unit that it is in.
class HERALD_API MoneyInfo : public ReadableWritableRecord<MoneyInfo> {
 public:
  MoneyInfo() = default;
  explicit MoneyInfo(const Money& money);
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit MoneyInfo(ByteStream& in);

  Money getMoney() const { return {amount_.getAmount(), monetaryUnitId_}; }
  int getMonetaryUnitId() const { return monetaryUnitId_; }
  std::int64_t getAmount() const { return amount_.getAmount(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("monetaryUnitId", self.monetaryUnitId_);
    fields("amount", self.amount_);
  }

 private:
  std::int16_t monetaryUnitId_ = 0;
  AmountInfo amount_;
};

}  // namespace Tessel
