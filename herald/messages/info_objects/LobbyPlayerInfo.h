#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A player who is registered for a tournament.
class HERALD_API LobbyPlayerInfo : public ReadableRecord<LobbyPlayerInfo> {
 public:
  static constexpr int VIP_FLAG = 0;

  int getPlayerId() const { return playerId_; }
  std::wstring getPlayerName() const { return playerName_.getString(); }
  bool isVIP() const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("playerName", self.playerName_);
    fields("attributes", self.attributes_);
  }

 private:
  std::int32_t playerId_ = -1;
  Text playerName_;
  std::int8_t attributes_ = -1;
};

}  // namespace Tessel
