#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/platform/tableau/PrizeStructureType.h>

#include <cstdint>

namespace Tessel {

class PrizeStructureInfoUpdate;

/// What a tournament pays, and to how many players.
class HERALD_API PrizeStructureInfo : public ReadableRecord<PrizeStructureInfo> {
 public:
  int getNumberOfPlayersInPayout() const { return numPlayersInPayout_; }
  Money getTotalPrizePool() const { return prizePool_.getMoney(); }
  const PrizeStructureType& getPrizeStructureType() const;
  Money getAddedCash() const { return addedCash_.getMoney(); }
  Money getGuaranteedCash() const { return guaranteedCash_.getMoney(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("numPlayersInPayout", self.numPlayersInPayout_);
    fields("prizePool", self.prizePool_);
    fields.template named<AllowedPrizeStructureType>("prizeStructureType", self.prizeStructureType_);
    fields("addedCash", self.addedCash_);
    fields("guaranteedCash", self.guaranteedCash_);
  }

 private:
  friend class PrizeStructureInfoUpdate;

  std::int32_t numPlayersInPayout_ = -1;
  MoneyAmount prizePool_;
  std::int8_t prizeStructureType_ = -1;
  MoneyAmount addedCash_;
  MoneyAmount guaranteedCash_;
};

}  // namespace Tessel
