#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/TesselBool.h>
#include <herald/messages/info_objects/TesselInt.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

namespace Tessel {

/// A player bought chips in a tournament.
class HERALD_API TourPlayerRebuyNotification : public ReadableRecord<TourPlayerRebuyNotification> {
 public:
  int getPlayerId() const { return playerId_.getValue(); }
  std::wstring getPlayerName() const { return playerName_.getString(); }
  Money getBoughtChips() const { return chipStack_.getMoney(); }
  Money getCost() const { return cost_.getMoney(); }
  bool wasAddon() const { return isAddon_.getValue(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("playerName", self.playerName_);
    fields("chipStack", self.chipStack_);
    fields("cost", self.cost_);
    fields("isAddon", self.isAddon_);
  }

 private:
  TesselInt playerId_;
  Text playerName_;
  MoneyAmount chipStack_;
  MoneyAmount cost_;
  TesselBool isAddon_;
};

}  // namespace Tessel
