#pragma once
#include <herald/messages/info_objects/AmountInfo.h>
#include <herald/platform/keystone/Money.h>

namespace Tessel {

/// An amount with the monetary unit that it is in, as a field of a record: what a `MoneyInfo` holds, without its
/// operations of a record.
class HERALD_API MoneyAmount {
 public:
  static constexpr std::string_view RECORD_NAME = "MoneyInfo";

  MoneyAmount() = default;
  explicit MoneyAmount(const Money& money)
      : amount_(money.getAmount()), monetaryUnitId_(static_cast<std::int16_t>(money.getMonetaryUnitId())) {}

  Money getMoney() const { return {amount_.getAmount(), monetaryUnitId_}; }
  int getMonetaryUnitId() const { return monetaryUnitId_; }
  std::int64_t getAmount() const { return amount_.getAmount(); }

  std::wstring toDebugString() const;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("monetaryUnitId", self.monetaryUnitId_);
    fields("amount", self.amount_);
  }

 private:
  Amount amount_;
  std::int16_t monetaryUnitId_ = 0;
};

/// An amount with the monetary unit that it is in.
class HERALD_API MoneyInfo : public ReadableWritableRecord<MoneyInfo> {
 public:
  MoneyInfo() = default;
  explicit MoneyInfo(const Money& money);
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit MoneyInfo(ByteStream& in);

  Money getMoney() const { return value_.getMoney(); }
  int getMonetaryUnitId() const { return value_.getMonetaryUnitId(); }
  std::int64_t getAmount() const { return value_.getAmount(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    MoneyAmount::wire(self.value_, fields);
  }

 private:
  MoneyAmount value_;
};

}  // namespace Tessel
