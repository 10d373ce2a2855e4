#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>

#include <cstdint>

namespace Tessel {

class PrizeStructureInfo;

/// The values of a prize structure that change as players enter.
class HERALD_API PrizeStructureInfoUpdate : public ReadableRecord<PrizeStructureInfoUpdate> {
 public:
  int getNumberOfPlayersInPayout() const { return numPlayersInPayout_; }
  Money getTotalPrizePool() const { return prizePool_.getMoney(); }

  /// Brings a prize structure up to date. A prize pool in another monetary unit is reported and not taken over.
  void update(PrizeStructureInfo& prizeStructure) const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("numPlayersInPayout", self.numPlayersInPayout_);
    fields("prizePool", self.prizePool_);
  }

 private:
  std::int32_t numPlayersInPayout_ = -1;
  MoneyAmount prizePool_;
};

}  // namespace Tessel
