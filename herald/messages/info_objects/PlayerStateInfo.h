#pragma once
#include <herald/messages/info_objects/InfoList.h>
#include <herald/messages/info_objects/PlayerInGameInfo.h>

namespace Tessel {

/// A player at the table when the client joins it.
class HERALD_API PlayerStateInfo : public ReadableRecord<PlayerStateInfo> {
 public:
  int getSeat() const { return seat_; }
  PlayerInGameInfo getPlayerInGameInfo() const { return player_; }
  /// The same without a copy; it stays this object's.
  const PlayerInGameInfo& player() const { return player_; }
  /// In the smallest units of the table's currency, or in its chips.
  std::int64_t getBetsNotInPot() const { return betsNotInPot_.getAmount(); }
  bool isSittingIn() const { return sittingIn_; }
  bool isSlow() const { return slow_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("seat", self.seat_);
    fields.ignoring("player", self.player_);
    fields.ignoring("betsNotInPot", self.betsNotInPot_);
    fields("sittingIn", self.sittingIn_);
    fields("slow", self.slow_);
  }

 private:
  std::int32_t seat_ = -1;
  PlayerInGameInfo player_;
  Amount betsNotInPot_;
  bool sittingIn_ = false;
  bool slow_ = false;
};

}  // namespace Tessel
