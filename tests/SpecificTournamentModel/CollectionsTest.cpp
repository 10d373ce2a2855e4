#include <gtest/gtest.h>
#include <herald/SpecificTournamentModel/TournamentCollectionModifiers.h>
#include <herald/SpecificTournamentModel/TournamentRankingModificationObjects.h>
#include <herald/SpecificTournamentModel/TournamentRebuyModel.h>
#include <herald/platform/keystone/Exceptions.h>
#include <tests/SpecificTournamentModel/TournamentValues.h>
#include <tests/support/ManualClock.h>

#include <functional>

namespace Tessel {
namespace {

TEST(TournamentPlayerRankingModel, PositionsStayUniqueAndTheUserStays) {
  TournamentPlayerRankingModel ranking;
  EXPECT_EQ(ranking.getArrayIndexFromRanking(1), -1);
  ranking.removePlayerByRank(1);
  for (const int position : {1, 2, 3}) ranking.addPlayer(rankedPlayer(10 * position, position));
  ranking.addPlayer(rankedPlayer(99, 2));
  EXPECT_EQ(playerIds(ranking.getRankedPlayers()), (std::vector<int>{10, 30, 99}));
  EXPECT_EQ(ranking.getArrayIndexFromRanking(2), 2);

  RankedPlayer player = rankedPlayer(5, 5);
  EXPECT_FALSE(ranking.getRankedPlayer(7, player));
  EXPECT_EQ(player.getPlayerId(), 5);
  EXPECT_TRUE(ranking.getRankedPlayer(3, player));
  EXPECT_EQ(player.getPlayerId(), 30);

  ranking.setUserRanking(rankedPlayer(7, 4));
  TournamentTopPlayersModificationObject twice({rankedPlayer(1, 5), rankedPlayer(2, 6), rankedPlayer(3, 5)});
  EXPECT_TRUE(twice.modify(ranking));
  EXPECT_EQ(playerIds(ranking.getRankedPlayers()), (std::vector<int>{2, 3}));
  TournamentTopPlayersModificationObject top({rankedPlayer(1, 1)});
  EXPECT_TRUE(top.modify(ranking));
  EXPECT_EQ(playerIds(ranking.getRankedPlayers()), (std::vector<int>{1}));
  EXPECT_TRUE(ranking.hasUserRanking());
  EXPECT_EQ(ranking.getUserRanking().getPlayerId(), 7);
}

using Ids = TsArray<int>;

TEST(TournamentRegisteredPlayers, TellsWhatABatchTouched) {
  TournamentRegisteredPlayers players;
  const TsArray<LobbyPlayerInfo> updated = {lobbyPlayer(5), lobbyPlayer(3), lobbyPlayer(5)};
  const Ids removed = {5, 8};
  ConcreteTournamentRegisteredPlayersModifier(updated, removed).modify(players);
  EXPECT_EQ(players.getModifiedPlayers(), (Ids{5, 3, 5, 5, 8}));
  EXPECT_EQ(players.getAllPlayerIds(), Ids{3});
  EXPECT_EQ(players.getRegisteredPlayer(3).getPlayerId(), 3);

  players.updateRegisteredPlayer(lobbyPlayer(1));
  players.resetModifiedPlayers();
  ClearTournamentRegisteredPlayersModifier().modify(players);
  EXPECT_EQ(players.getModifiedPlayers(), (Ids{1, 3}));
  EXPECT_FALSE(players.containsRegisteredPlayer(3));
  expectFailure<NullPointerException>([&] { static_cast<void>(players.getRegisteredPlayer(42)); },
                                      L"TournamentRegisteredPlayers", 51, L"id", L"42");
}

TEST(TournamentTables, AnUpdateEmptiesTheRankedPlayersAndAbsentTablesAreRefused) {
  TournamentTables tables;
  const TsArray<LobbyTableInfo> updated = {lobbyTable(4)};
  ConcreteTournamentTablesModifier(updated, {}).modify(tables);
  tables.setRankedPlayers(4, {rankedPlayer(1, 1)});
  EXPECT_EQ(tables.getTable(4).getRankedPlayers().size(), 1);
  EXPECT_EQ(tables.getTable(4).getTableName(), L"Table");
  EXPECT_EQ(tables.getTable(4).getNumberOfSeatedPlayers(), 9);
  EXPECT_TRUE(tables.getTable(4).isVIPTable());
  EXPECT_EQ(tables.getTable(4).getMaxChipStack(), Money(200, 1));
  tables.updateTable(4, L"again", 2, false, Money(), Money());
  EXPECT_TRUE(tables.getTable(4).getRankedPlayers().empty());
  EXPECT_EQ(tables.getModifiedTables(), (Ids{4, 4}));

  const auto expectAbsent = [](const std::function<void()>& action, int line) {
    expectFailure<ObjectNotFoundException>(action, L"TournamentTables", line, L"Tournament table with id 7");
  };
  expectAbsent([&] { static_cast<void>(tables.getTable(7)); }, 52);
  expectAbsent([&] { tables.setRankedPlayers(7, {}); }, 106);
  expectAbsent([&] { tables.clearRankedPlayers(7); }, 122);
}

TEST(TournamentRebuyModel, FollowsTheTermsTheUserAndThePeriods) {
  const WithManualClock manual;
  manual.clock->calendar = 1000;
  TournamentRebuyModel rebuys;
  EXPECT_TRUE(rebuys.hasUnlimitedNumberOfRebuys());
  EXPECT_FALSE(rebuys.isInRebuyPeriod());
  EXPECT_TRUE(rebuys.isBeforeAddonPeriod());
  rebuys.setRebuyInfo(3, Money(10, 1), Money(1500, 2), 60000);
  EXPECT_TRUE(rebuys.hasRebuys());
  EXPECT_FALSE(rebuys.hasUnlimitedNumberOfRebuys());

  const std::pair<std::int64_t, std::int64_t> ends[] = {
      {1499, 1001}, {1500, 1002}, {0, 1000}, {-1500, 999}, {INT64_MAX, 1000 + INT64_MAX / 1000}};
  for (const auto& [milliseconds, end] : ends) {
    rebuys.setUserRebuyInfo(2, milliseconds);
    EXPECT_EQ(rebuys.getRebuyPeriodEndTime(), TsTime(end)) << milliseconds;
    EXPECT_EQ(rebuys.isInRebuyPeriod(), end >= 1000);
  }
  rebuys.setUserRebuyInfo(2, 2000);
  for (const int now : {1001, 1002, 1003}) {
    manual.clock->calendar = now;
    EXPECT_EQ(rebuys.isInRebuyPeriod(), now <= 1002) << now;
  }
  rebuys.setRebuyPeriodEnded();
  EXPECT_TRUE(rebuys.hasUserInfo());
  EXPECT_EQ(rebuys.getRemainingUserRebuys(), 0);
  EXPECT_FALSE(rebuys.isInRebuyPeriod());

  rebuys.setAddonPeriodStarts();
  EXPECT_TRUE(rebuys.isInAddonPeriod() && !rebuys.isBeforeAddonPeriod() && !rebuys.isAfterAddonPeriod());
  rebuys.setAddonPeriodEnds();
  EXPECT_TRUE(rebuys.isAfterAddonPeriod() && !rebuys.isInAddonPeriod());
}

}  // namespace
}  // namespace Tessel
