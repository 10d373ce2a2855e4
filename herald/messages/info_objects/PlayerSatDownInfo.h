#pragma once
#include <herald/messages/info_objects/PlayerInGameInfo.h>

namespace Tessel {

/// A player who has taken a seat.
class HERALD_API PlayerSatDownInfo : public ReadableRecord<PlayerSatDownInfo> {
 public:
  const PlayerInGameInfo& getPlayerInGameInfo() const { return player_; }
  int getSeat() const { return seat_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("player", self.player_);
    fields("seat", self.seat_);
  }

 private:
  PlayerInGameInfo player_;
  std::int8_t seat_ = -1;
};

}  // namespace Tessel
