#pragma once
#include <herald/messages/info_objects/PlayerInGameInfo.h>
#include <herald/platform/keystone/List.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A table as its lobby shows it: who plays and who waits. A stream that ends before the players, the waiting list or
/// the name throws `KeystoneException`, and so does a player that cannot be read; a name that cannot be decoded does
/// not.
class HERALD_API LobbyInfo : public ReadableRecord<LobbyInfo> {
 public:
  int getId() const { return id_; }
  /// The count as it came, here and below; a negative one has no players.
  int getNrPlayers() const { return nrPlayers_; }
  /// The first of `getNrPlayers()` players at the table. They live in this record.
  const PlayerInGameInfo* getPlayers() const { return players_.data(); }
  int getNrPlayersWaiting() const { return nrPlayersWaiting_; }
  /// The first of `getNrPlayersWaiting()` players on the waiting list. They live in this record.
  const PlayerInfo* getPlayersWaiting() const { return playersWaiting_.data(); }
  std::wstring getName() const { return name_.getString(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("id", self.id_);
    requireMore(fields.hasMore());
    fields.template infoArrayKeeping<std::int8_t>("players", self.nrPlayers_, self.players_);
    requireMore(fields.hasMore());
    fields.template infoArrayKeeping<std::int8_t>("playersWaiting", self.nrPlayersWaiting_, self.playersWaiting_);
    requireMore(fields.hasMore());
    fields("name", self.name_);
  }

 private:
  static void requireMore(bool hasMore);

  std::int32_t id_ = -1;
  std::int8_t nrPlayers_ = 0;
  List<PlayerInGameInfo> players_;
  std::int8_t nrPlayersWaiting_ = 0;
  List<PlayerInfo> playersWaiting_;
  Text name_;
};

}  // namespace Tessel
