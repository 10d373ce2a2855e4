#pragma once
#include <herald/messages/info_objects/CardsInfo.h>
#include <herald/platform/tableau/DealType.h>

namespace Tessel {

/// The deal type as it travels: the number of a Tableau deal type.
enum class DealtCardsInfoDealType : std::int8_t {};

/// Cards, and in which deal of the hand they come.
class HERALD_API DealtCardsInfo : public ReadableRecord<DealtCardsInfo> {
 public:
  DealtCardsInfo() = default;
  DealtCardsInfo(DealtCardsInfoDealType dealType, CardsInfo cards);

  const CardsInfo& getCardsInfo() const { return cards_; }
  const DealType& getDealType() const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("dealType", self.dealType_);
    fields("cards", self.cards_);
  }

 private:
  std::int8_t dealType_ = -1;
  CardsInfo cards_;
};

}  // namespace Tessel
