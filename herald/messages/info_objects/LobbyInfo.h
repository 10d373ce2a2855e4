#pragma once
#include <herald/messages/info_objects/PlayerInGameInfo.h>

#include <cstdint>
#include <vector>

namespace Tessel {

/// A table as its lobby shows it: who plays and who waits. A stream that ends before the players, the waiting list or
/// the name throws `KeystoneException`, and so does a player that cannot be read; a name that cannot be decoded does
/// not.
class HERALD_API LobbyInfo : public ReadableRecord<LobbyInfo> {
 public:
  int getId() const { return id_; }
  int getNrPlayers() const { return static_cast<int>(players_.size()); }
  /// The first of `getNrPlayers()` players at the table. They live in this record.
  const PlayerInGameInfo* getPlayers() const { return players_.data(); }
  int getNrPlayersWaiting() const { return static_cast<int>(playersWaiting_.size()); }
  /// The first of `getNrPlayersWaiting()` players on the waiting list. They live in this record.
  const PlayerInfo* getPlayersWaiting() const { return playersWaiting_.data(); }
  std::wstring getName() const { return name_.getString(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("id", self.id_);
    requireMore(fields.hasMore());
    fields.template infoArray<std::int8_t>("players", self.players_);
    requireMore(fields.hasMore());
    fields.template infoArray<std::int8_t>("playersWaiting", self.playersWaiting_);
    requireMore(fields.hasMore());
    fields("name", self.name_);
  }

 private:
  static void requireMore(bool hasMore);

  std::int32_t id_ = -1;
  std::vector<PlayerInGameInfo> players_;
  std::vector<PlayerInfo> playersWaiting_;
  TsString name_;
};

}  // namespace Tessel
