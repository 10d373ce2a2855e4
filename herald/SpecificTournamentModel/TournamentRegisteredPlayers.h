#pragma once
#include <herald/SpecificTournamentModel/ModifiedMap.h>
#include <herald/messages/info_objects/LobbyPlayerInfo.h>

namespace Tessel {

/// The players registered for a tournament, by id, and the ids that the last batch of changes touched.
class HERALD_API TournamentRegisteredPlayers {
 public:
  void updateRegisteredPlayer(const LobbyPlayerInfo& player) { players_.set(player.getPlayerId(), player); }
  /// An id that is not registered counts as touched, too.
  void removeRegisteredPlayer(int id) { players_.remove(id); }
  void clearRegisteredPlayers() { players_.clear(); }

  bool containsRegisteredPlayer(int id) const { return players_.find(id) != nullptr; }
  /// Throws `NullPointerException` for an id that is not registered.
  const LobbyPlayerInfo& getRegisteredPlayer(int id) const;
  /// Ascending.
  TsArray<int> getAllPlayerIds() const { return players_.ids(); }

  /// In the order of the changes; an id may occur several times.
  const TsArray<int>& getModifiedPlayers() const { return players_.modifiedIds(); }
  void resetModifiedPlayers() { players_.resetModifiedIds(); }

 private:
  ModifiedMap<LobbyPlayerInfo> players_;
};

/// Looks at the registered players under the model's lock.
class HERALD_API TournamentRegisteredPlayersReader {
 public:
  virtual ~TournamentRegisteredPlayersReader();
  virtual void read(const TournamentRegisteredPlayers& players) = 0;
};

}  // namespace Tessel
