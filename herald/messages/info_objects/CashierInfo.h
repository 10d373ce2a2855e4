#pragma once
#include <herald/messages/info_objects/AmountInfo.h>

namespace Tessel {

/// What the player has, and with how much a table can be joined.
class HERALD_API CashierInfo : public ReadableRecord<CashierInfo> {
 public:
  std::int64_t getAccountBalance() const { return accountBalance_.getAmount(); }
  std::int64_t getMinBuyIn() const { return minBuyIn_.getAmount(); }
  std::int64_t getMaxBuyIn() const { return maxBuyIn_.getAmount(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("accountBalance", self.accountBalance_);
    fields("minBuyIn", self.minBuyIn_);
    fields("maxBuyIn", self.maxBuyIn_);
  }

 private:
  Amount accountBalance_;
  Amount minBuyIn_;
  Amount maxBuyIn_;
};

}  // namespace Tessel
