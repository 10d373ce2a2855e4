#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/List.h>
#include <herald/platform/keystone/TsArray.h>
#include <herald/platform/tableau/HandValue.h>

#include <cstdint>

namespace Tessel {

/// What a player's hand is worth.
class HERALD_API HandValueInfo : public ReadableRecord<HandValueInfo> {
 public:
  static constexpr int HighHand = 0;
  static constexpr int LowHand = 1;

  int getPlayerSeat() const { return playerSeat_; }
  /// `HighHand` or `LowHand`.
  int getHandType() const { return handType_; }
  AllowedHandValue getHandValue() const { return static_cast<AllowedHandValue>(handValue_); }

  int getNumberOfSpecifiedCards() const { return static_cast<int>(specifiedCards_.size()); }
  /// An index outside 0 to `getNumberOfSpecifiedCards()` - 1 throws `OutOfBoundsException`.
  int getSpecifiedCard(int i) const;
  TsArray<int> getSpecifiedCards() const { return {specifiedCards_.begin(), specifiedCards_.end()}; }

  /// Always empty: the value's text is the view's to make.
  std::wstring getHandValueString() const { return {}; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerSeat", self.playerSeat_);
    fields.template named<AllowedHandValue>("handType", self.handType_);
    fields("handValue", self.handValue_);
    fields.template countedOrNone<std::int8_t>("specifiedCards", self.specifiedCards_);
  }

 private:
  std::int8_t playerSeat_ = -1;
  std::int8_t handType_ = -1;
  std::int8_t handValue_ = -1;
  List<std::int8_t> specifiedCards_;
};

}  // namespace Tessel
