#pragma once
#include <herald/platform/keystone/RankedPlayer.h>
#include <herald/platform/keystone/TsArray.h>

namespace Tessel {

/// The top players of a tournament, in the order in which they came, and the user's own place.
class HERALD_API TournamentPlayerRankingModel {
 public:
  /// Appends the player, in place of one at the same position.
  void addPlayer(const RankedPlayer& player);
  /// Nothing happens when no player has that position.
  void removePlayerByRank(int rank);
  /// As if all were removed and then each of these added, in time n log n. The user's own place stays.
  void replaceAllPlayers(const TsArray<RankedPlayer>& players);
  /// The user's own place stays.
  void removeAllPlayers() { players_.clear(); }

  /// False, with `player` unchanged, when no player has that position.
  bool getRankedPlayer(int rank, RankedPlayer& player) const;
  TsArray<RankedPlayer> getRankedPlayers() const { return players_; }
  /// The index of the first player with that position, or -1.
  int getArrayIndexFromRanking(int rank) const;

  void setUserRanking(const RankedPlayer& user);
  bool hasUserRanking() const { return hasUserRanking_; }
  const RankedPlayer& getUserRanking() const { return userRanking_; }

 private:
  TsArray<RankedPlayer> players_;
  bool hasUserRanking_ = false;
  RankedPlayer userRanking_;
};

}  // namespace Tessel
