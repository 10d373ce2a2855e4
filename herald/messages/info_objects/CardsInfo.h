#pragma once
#include <herald/messages/info_objects/CardInfo.h>
#include <herald/platform/keystone/List.h>

#include <vector>

namespace Tessel {

/// Cards that are dealt or shown, and which of them win.
class HERALD_API CardsInfo : public ReadableRecord<CardsInfo> {
 public:
  CardsInfo() = default;
  explicit CardsInfo(const std::vector<CardInfo>& cards) : cards_(cards.begin(), cards.end()) {}

  int getNrCards() const { return static_cast<int>(cards_.size()); }
  /// An index outside 0 to `getNrCards()` - 1 throws `OutOfBoundsException`, here and below.
  const CardInfo& getCardInfo(int i) const;
  bool hasWinningCards() const { return hasWinningCards_; }
  bool isWinningCard(int i) const;

  /// True when every card is a table card, also when there is no card.
  bool isCommunityCards() const;
  bool doesPlayerHaveCards(int seat) const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template counted<std::int32_t>("cards", self.cards_);
    fields("hasWinningCards", self.hasWinningCards_);
    fields.itemsIf(isTrue("hasWinningCards", self.hasWinningCards_), "winningCards", self.winningCards_,
                   CountFrom("cards", self.getNrCards()));
  }

 private:
  List<CardInfo> cards_;
  bool hasWinningCards_ = false;
  List<bool> winningCards_;
};

}  // namespace Tessel
