#pragma once
#include <herald/messages/info_objects/AmountInfo.h>

#include <cstdint>

namespace Tessel {

/// An amount that a player bets, wins or pays.
class HERALD_API CreditInfo : public ReadableWritableRecord<CreditInfo> {
 public:
  CreditInfo() = default;
  CreditInfo(int playerId, int seat, std::int64_t amount);

  int getPlayerId() const { return playerId_; }
  int getSeat() const { return seat_; }
  /// In the smallest units of the table's currency, or in its chips.
  std::int64_t getAmount() const { return amount_.getAmount(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("seat", self.seat_);
    fields("amount", self.amount_);
  }

 private:
  std::int32_t playerId_ = -1;
  std::int8_t seat_ = -1;
  Amount amount_;
};

}  // namespace Tessel
