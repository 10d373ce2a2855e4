#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/TesselBool.h>
#include <herald/messages/info_objects/TesselInt.h>

namespace Tessel {

/// An offer to the user to buy chips in a tournament.
class HERALD_API TourRebuyQuery : public ReadableRecord<TourRebuyQuery> {
 public:
  int getTournamentId() const { return tourId_.getValue(); }
  /// The chips that the purchase gives.
  Money getBoughtChips() const { return chips_.getMoney(); }
  Money getRebuyCost() const { return cost_.getMoney(); }
  bool isAddon() const { return isAddon_.getValue(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tourId", self.tourId_);
    fields("chips", self.chips_);
    fields("cost", self.cost_);
    fields("isAddon", self.isAddon_);
  }

 private:
  TesselInt tourId_;
  MoneyAmount chips_;
  MoneyAmount cost_;
  TesselBool isAddon_;
};

}  // namespace Tessel
