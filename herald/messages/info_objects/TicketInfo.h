#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

namespace Tessel {

/// What it takes to enter a tournament.
class HERALD_API TicketInfo : public ReadableRecord<TicketInfo> {
 public:
  std::wstring getDescription() const { return description_.getString(); }
  Money getBuyIn() const { return buyIn_.getMoney(); }
  Money getFee() const { return fee_.getMoney(); }
  bool isRestricted() const { return isRestricted_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("description", self.description_);
    fields("buyIn", self.buyIn_);
    fields("fee", self.fee_);
    fields("isRestricted", self.isRestricted_);
  }

 private:
  Text description_;
  MoneyAmount buyIn_;
  MoneyAmount fee_;
  bool isRestricted_ = false;
};

}  // namespace Tessel
