#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/RankedPlayer.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A player in a tournament's ranking.
class HERALD_API RankedPlayerInfo : public ReadableRecord<RankedPlayerInfo> {
 public:
  /// The number of the attribute bit of a VIP.
  static constexpr int VIP_BIT = 0;

  RankedPlayer getRankedPlayer() const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("playerName", self.playerName_);
    fields("position", self.position_);
    fields("chipStack", self.chipStack_);
    fields("attributes", self.attributes_);
  }

 private:
  std::int32_t playerId_ = -1;
  Text playerName_;
  std::int32_t position_ = -1;
  MoneyAmount chipStack_;
  std::int32_t attributes_ = -1;
};

}  // namespace Tessel
