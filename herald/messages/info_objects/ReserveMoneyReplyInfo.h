#pragma once
#include <herald/messages/info_objects/PlayerInGameInfo.h>

namespace Tessel {

/// The answer to a request to take money to the table. The statuses 0 and 1 are failure and success.
class HERALD_API ReserveMoneyReplyInfo : public ReadableRecord<ReserveMoneyReplyInfo> {
 public:
  bool isStatusFail() const { return reserveStatus_ == 0; }
  bool isStatusOk() const { return reserveStatus_ == 1; }
  const PlayerInGameInfo& getPlayerInGameInfo() const { return player_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("reserveStatus", self.reserveStatus_);
    fields("player", self.player_);
  }

 private:
  std::int8_t reserveStatus_ = -1;
  PlayerInGameInfo player_;
};

}  // namespace Tessel
