#pragma once
#include <herald/SpecificTournamentModel/TournamentPlayerRankingModel.h>

#include <utility>

// Changes of the ranking, as the controller hands them to the model. Internal: not exported.

namespace Tessel {

class TournamentPlayerRankingModificationObject {
 public:
  virtual ~TournamentPlayerRankingModificationObject() = default;
  /// The caller owns the copy.
  [[nodiscard]] virtual TournamentPlayerRankingModificationObject* clone() const = 0;
  /// Answers whether the observers are to be told: always.
  virtual bool modify(TournamentPlayerRankingModel& ranking) = 0;
};

class TournamentUserRankingModificationObject : public TournamentPlayerRankingModificationObject {
 public:
  explicit TournamentUserRankingModificationObject(RankedPlayer user) : user_(std::move(user)) {}

  [[nodiscard]] TournamentPlayerRankingModificationObject* clone() const override {
    return new TournamentUserRankingModificationObject(*this);
  }

  bool modify(TournamentPlayerRankingModel& ranking) override {
    ranking.setUserRanking(user_);
    return true;
  }

 private:
  RankedPlayer user_;
};

class TournamentTopPlayersModificationObject : public TournamentPlayerRankingModificationObject {
 public:
  explicit TournamentTopPlayersModificationObject(TsArray<RankedPlayer> players) : players_(std::move(players)) {}

  [[nodiscard]] TournamentPlayerRankingModificationObject* clone() const override {
    return new TournamentTopPlayersModificationObject(*this);
  }

  bool modify(TournamentPlayerRankingModel& ranking) override {
    ranking.replaceAllPlayers(players_);
    return true;
  }

 private:
  TsArray<RankedPlayer> players_;
};

}  // namespace Tessel
