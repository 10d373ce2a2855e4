#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// A player wants to join a game; also a lobby, whose id then stands for the game's.
class HERALD_API JoinRequest : public ReadableWritableRecord<JoinRequest> {
 public:
  JoinRequest() = default;
  JoinRequest(int gameId, int playerId) : gameId_(gameId), playerId_(playerId) {}

  int getGameID() const { return gameId_; }
  int getPlayerID() const { return playerId_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("gameId", self.gameId_);
    fields("playerId", self.playerId_);
  }

 private:
  std::int32_t gameId_ = -1;
  std::int32_t playerId_ = -1;
};

}  // namespace Tessel
