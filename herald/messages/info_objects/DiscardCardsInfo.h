#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/List.h>
#include <herald/platform/keystone/TsArray.h>

#include <cstdint>

namespace Tessel {

/// Which of a player's cards go, by their places in the hand.
class HERALD_API DiscardCardsInfo : public ReadableWritableRecord<DiscardCardsInfo> {
 public:
  int getSeat() const { return seat_; }
  void setSeat(int seat) { seat_ = static_cast<std::int8_t>(seat); }

  int getNrDiscardedCards() const { return static_cast<int>(cards_.size()); }
  void getDiscardedCards(TsArray<int>& cards) const;
  /// Each place is narrowed to a byte. More than 127 of them cannot be written.
  void setDiscardedCards(const TsArray<int>& cards);

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("seat", self.seat_);
    fields.template countedOrNone<std::int8_t>("cards", self.cards_);
  }

 private:
  std::int8_t seat_ = -1;
  List<std::int8_t> cards_;
};

}  // namespace Tessel
