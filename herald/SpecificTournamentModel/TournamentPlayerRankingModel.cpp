#include <herald/SpecificTournamentModel/TournamentPlayerRankingModel.h>

#include <algorithm>
#include <set>
#include <vector>

namespace Tessel {

void TournamentPlayerRankingModel::addPlayer(const RankedPlayer& player) {
  removePlayerByRank(player.getPosition());
  players_.add(player);
}

void TournamentPlayerRankingModel::replaceAllPlayers(const TsArray<RankedPlayer>& players) {
  // Of those at one position the last counts, and stands where it came.
  std::set<int> taken;
  std::vector<RankedPlayer> kept;
  for (int i = players.size() - 1; i >= 0; --i)
    if (taken.insert(players[i].getPosition()).second) kept.push_back(players[i]);
  players_ = TsArray<RankedPlayer>(kept.rbegin(), kept.rend());
}

void TournamentPlayerRankingModel::removePlayerByRank(int rank) {
  const int index = getArrayIndexFromRanking(rank);
  if (index == -1) return;
  std::move(players_.begin() + index + 1, players_.end(), players_.begin() + index);
  players_.setSize(players_.size() - 1);
}

bool TournamentPlayerRankingModel::getRankedPlayer(int rank, RankedPlayer& player) const {
  const int index = getArrayIndexFromRanking(rank);
  if (index == -1) return false;
  player = players_[index];
  return true;
}

int TournamentPlayerRankingModel::getArrayIndexFromRanking(int rank) const {
  const auto player = std::ranges::find(players_, rank, &RankedPlayer::getPosition);
  return player == players_.end() ? -1 : static_cast<int>(player - players_.begin());
}

void TournamentPlayerRankingModel::setUserRanking(const RankedPlayer& user) {
  userRanking_ = user;
  hasUserRanking_ = true;
}

}  // namespace Tessel
