#include <gtest/gtest.h>
#include <herald/SpecificTournamentModel/TournamentBreakModificationObjects.h>
#include <herald/SpecificTournamentModel/TournamentInformationModificationObjects.h>
#include <herald/SpecificTournamentModel/TournamentRankingModificationObjects.h>
#include <herald/herald.h>
#include <tests/SpecificTournamentModel/TournamentValues.h>
#include <tests/support/LockProbe.h>
#include <tests/support/ManualClock.h>
#include <tests/support/RecordingSink.h>
#include <tests/support/Told.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <memory>
#include <thread>

namespace Tessel {
namespace {

// The sizes of the collections, seen under the lock.
class Sizes : public TournamentRegisteredPlayersReader, public TournamentTablesReader {
 public:
  int readPlayers(const SpecificTournamentModel& model) { return model.readRegisteredPlayers(*this), size; }
  int readTables(const SpecificTournamentModel& model) { return model.readTables(*this), size; }
  void read(const TournamentRegisteredPlayers& players) override { size = players.getAllPlayerIds().size(); }
  void read(const TournamentTables& tables) override { size = tables.getAllTableIds().size(); }

  int size = 0;
};

// All that changes, but for the break state of the levels, whose changes are not told.
std::string stateOf(const SpecificTournamentModel& model) {
  const TournamentBaseModel basic = model.getBasicInformation();
  const TournamentBreakModel breaks = model.getBreakInformation();
  const TournamentPlayerRankingModel ranking = model.getPlayerRankingInformation();
  const TournamentRebuyModel rebuys = model.getRebuyInfo();
  return told(basic.getNumberOfEntrants(), basic.getNumberOfPlayersRemaining(), basic.getAverageChipStack(),
              breaks.hasValidInfo(), breaks.isOnBreak(), breaks.hasValidInfo() && breaks.hasMoreBreaks(),
              ranking.getRankedPlayers().size(), ranking.hasUserRanking(), rebuys.hasRebuys(), rebuys.hasAddons(),
              rebuys.getRemainingUserRebuys(), rebuys.getRebuyPeriodEndTime().getSeconds(), rebuys.isInAddonPeriod(),
              rebuys.isAfterAddonPeriod(), model.getLevelInformation().getLevelNumber(),
              model.getNextLevelInformation().getLevelNumber(), Sizes().readPlayers(model), Sizes().readTables(model),
              model.getTableRankedPlayers(4).size())
         + valuesOf(model.getTourSummary()) + valuesOf(model.getPlayerInfo());
}

class Recorder : public MVCObserver {
 public:
  explicit Recorder(SpecificTournamentModel& observed) : model(observed) { model.addObserver(*this); }
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;
  ~Recorder() override { model.removeObserver(*this); }

  void update(const NotificationUpdateObject& update) override {
    std::string part(classNameOf(typeid(update)));
    for (const std::string_view rest : {"Tournament", "UpdateObject"}) part.erase(part.find(rest), rest.size());
    updates += ' ' + part;
    last.reset(update.clone());
    seen = stateOf(model);
  }

  /// The parts of the model that the updates since the last call were about.
  std::string take() { return std::exchange(updates, ""); }

  SpecificTournamentModel& model;
  std::string updates;
  std::string seen;  ///< The state of the model within the last update.
  std::unique_ptr<NotificationUpdateObject> last;
};

// A summary with rebuys.
TourSummary summaryWithRebuys(bool hasAddon = true) {
  auto bytes = goldenCase("SpecificTourSummary").bytes;
  const auto untilAddon = toBytes("00000029 FFFFFFFFFFFF5BF0");
  const auto found = std::search(bytes.begin(), bytes.end(), untilAddon.begin(), untilAddon.end());
  found[static_cast<std::ptrdiff_t>(untilAddon.size())] = hasAddon ? 1 : 0;
  return read<TourSummary>(bytes);
}

TourSummaryUpdate updateOfThatSummary() {
  auto bytes = goldenCase("SpecificTourSummaryUpdate").bytes;
  std::copy_n(goldenCase("SpecificTourSummary").bytes.begin(), 4, bytes.begin());  // the tournament's id
  return read<TourSummaryUpdate>(bytes);
}

TEST(SpecificTournamentController, EachPieceOfNewsChangesItsPartAndThenNotifiesOfIt) {
  const WithManualClock manual;
  const WithRecordingSink recording;
  manual.clock->calendar = 1000;
  SpecificTournamentModel model(42);
  SpecificTournamentController controller(model);
  Recorder recorder(model);

  const SpecificLobbyPlayerInfo user = golden<SpecificTourSummary>().getPlayerInfo();
  const std::pair<std::function<void()>, std::string> rows[] = {
      {[&] { controller.tourGlobalInfo(TourSummary()); }, " GlobalInformation"},
      {[&] { controller.tourGlobalInfo(summaryWithRebuys()); }, " GlobalInformation Rebuy Rebuy"},
      {[&] { controller.tournamentCancelled(); }, " GlobalInformation"},
      {[&] { controller.tournamentCancelled(); }, " GlobalInformation"},
      {[&] { controller.tourGlobalInfoUpdate(updateOfThatSummary()); }, " GlobalInformation"},
      {[&] { controller.playersNotification(10, 7, 1500); }, " Base"},
      {[&] { controller.playerInfo(user); }, " PlayerInformation"},
      {[&] { controller.userRankInfo(rankedPlayer(7, 3)); }, " PlayerRanking"},
      {[&] { controller.tourRankInfo({rankedPlayer(1, 1)}); }, " PlayerRanking"},
      {[&] { controller.levelInfo(TournamentLevelInformation(4)); }, " LevelInformation"},
      {[&] { controller.nextLevelInfo(TournamentLevelInformation(5)); }, " LevelInformation"},
      {[&] { controller.breakNotification(0, 1); }, " Break"},
      {[&] { controller.breakNotification(-1, 10); }, ""},
      {[&] { controller.breakNotification(5, 0); }, ""},
      {[&] { controller.breakInfo(60); }, " Break"},
      {[&] { controller.breakEnded(); }, " Break"},
      {[&] { controller.noMoreBreaksNotification(); }, " Break"},
      {[&] { controller.updateRegisteredPlayers({lobbyPlayer(3)}, {8}); }, " RegisteredPlayers"},
      {[&] { controller.clearRegisteredPlayers(); }, " RegisteredPlayers"},
      {[&] { controller.tournamentTablesUpdate({lobbyTable(4)}, {}); }, " Tables"},
      {[&] { controller.tournamentRankedPlayerList(4, {rankedPlayer(1, 1)}); }, " TableRankedPlayers"},
      {[&] { controller.clearRankedPlayerList(4); }, " TableRankedPlayers"},
      {[&] { controller.clearTables(); }, " Tables"},
      {[&] { controller.userRebuyInfo(1500, 2); }, " Rebuy"},
      {[&] { controller.userRebuyPeriodEnded(); }, " Rebuy"},
      {[&] { controller.userAddonInfo(9); }, " Rebuy"},
      {[&] { controller.userAddonPeriodEnded(); }, " Rebuy"},
  };
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    rows[i].first();
    EXPECT_EQ(recorder.take(), rows[i].second) << "row " << i;
    if (rows[i].second.empty()) continue;
    EXPECT_EQ(recorder.seen, stateOf(model)) << "row " << i;
  }
  const TourSummary summary = model.getTourSummary();
  EXPECT_EQ(told(summary.getTournamentId(), summary.getMaximumNumberOfEntrants(), summary.getNumberOfEntrants()),
            "1004 303 -2012");
  EXPECT_EQ(valuesOf(model.getPlayerInfo()), valuesOf(user));
  const TournamentBaseModel basic = model.getBasicInformation();
  EXPECT_EQ(told(basic.getNumberOfEntrants(), basic.getNumberOfPlayersRemaining(), basic.getAverageChipStack(),
                 model.getLevelInformation().getLevelNumber(), model.getNextLevelInformation().getLevelNumber()),
            "10 7 1500 4 5");
  const TournamentPlayerRankingModel ranking = model.getPlayerRankingInformation();
  EXPECT_EQ(playerIds(ranking.getRankedPlayers()), std::vector<int>{1});
  EXPECT_EQ(ranking.getUserRanking().getPlayerId(), 7);
  controller.userRebuyInfo(3000, 2);
  const TournamentRebuyModel rebuys = model.getRebuyInfo();
  EXPECT_EQ(told(rebuys.hasRebuys(), rebuys.getTotalNumberOfRebuys(), rebuys.getRebuyCost(), rebuys.getRebuyAmount(),
                 rebuys.getRebuyDuration(), rebuys.hasAddons(), rebuys.getTotalNumberOfAddons(), rebuys.getAddonCost(),
                 rebuys.getAddonAmount(), rebuys.getRemainingUserRebuys(), rebuys.getRebuyPeriodEndTime().getSeconds()),
            "1 41 -440/44 430/43 -42000 1 1 460/-46 450/45 2 1003");
}

// A change of the application's own that finds nothing to change.
template <class Base, class Part>
class NoChange : public Base {
 public:
  Base* clone() const override { return new NoChange(*this); }
  bool modify(Part&) override { return false; }
};

TEST(SpecificTournamentModel, WhatChangesNothingIsNotTold) {
  SpecificTournamentModel model(42);
  Recorder recorder(model);
  NoChange<TournamentBreakModificationObject, TournamentBreakModel> noBreak;
  NoChange<TournamentPlayerRankingModificationObject, TournamentPlayerRankingModel> noRanking;
  NoChange<TournamentGlobalInformationModificationObject, TourSummary> noSummary;
  model.modifyBreakInformation(noBreak);
  model.modifyPlayerRankingInformation(noRanking);
  model.modifyGlobalInformation(noSummary);
  EXPECT_EQ(recorder.take(), "");
  SpecificTournamentController(model).tourGlobalInfo(summaryWithRebuys(false));
  EXPECT_EQ(recorder.take(), " GlobalInformation Rebuy");
  EXPECT_FALSE(model.getRebuyInfo().hasAddons());
}

TEST(SpecificTournamentModel, EveryOperationHoldsTheLock) {
  SpecificTournamentModel model(42);
  SpecificTournamentController news(model);
  const auto asking = [&](auto... getters) { return Operations{[&model, getters] { (model.*getters)(); }...}; };
  using Model = SpecificTournamentModel;
  Operations operations =
      asking(&Model::getBasicInformation, &Model::getBreakInformation, &Model::getPlayerRankingInformation,
             &Model::getLevelInformation, &Model::getNextLevelInformation, &Model::getTourSummary,
             &Model::getPlayerInfo, &Model::getRebuyInfo, &Model::tournamentCancelled, &Model::setAddonPeriodStarted);
  operations.emplace_back([&] { model.getTableRankedPlayers(4); });
  operations.emplace_back([&] { Sizes().readPlayers(model); });
  operations.emplace_back([&] { Sizes().readTables(model); });
  operations.emplace_back([&] { news.levelInfo(TournamentLevelInformation(4)); });
  operations.emplace_back([&] { news.clearTables(); });
  const LockProbe probe(model, operations, [&] { news.playersNotification(1, 2, 3); });
}

TEST(SpecificTournamentModel, UpdatesNameWhatTheBatchTouched) {
  SpecificTournamentModel model(42);
  EXPECT_EQ(model.getBasicInformation(), TournamentBaseModel());
  SpecificTournamentController controller(model);
  Recorder recorder(model);
  controller.updateRegisteredPlayers({lobbyPlayer(5), lobbyPlayer(3)}, {8});
  controller.clearRegisteredPlayers();
  const auto& players = dynamic_cast<const TournamentRegisteredPlayersUpdateObject&>(*recorder.last);
  EXPECT_EQ(players.getModifiedPlayers(), (TsArray<int>{3, 5}));
  controller.tournamentTablesUpdate({lobbyTable(8)}, {7});
  controller.tournamentTablesUpdate({lobbyTable(4)}, {9});
  const auto& tables = dynamic_cast<const TournamentTablesUpdateObject&>(*recorder.last);
  EXPECT_EQ(tables.getModifiedTables(), (TsArray<int>{4, 9}));
  controller.tournamentRankedPlayerList(4, {rankedPlayer(1, 1)});
  EXPECT_EQ(dynamic_cast<const TournamentTableRankedPlayersUpdateObject&>(*recorder.last).getTableId(), 4);
  EXPECT_EQ(playerIds(model.getTableRankedPlayers(4)), std::vector<int>{1});
  controller.tournamentCancelled();
  EXPECT_EQ(model.getTourSummary().getTournamentStatus().getValue(), AllowedTournamentStatus::CANCELLED);
}

TEST(SpecificTournamentModel, AbsentTables) {
  const WithRecordingSink recording;
  SpecificTournamentModel model(42);
  SpecificTournamentController controller(model);
  Recorder recorder(model);
  EXPECT_TRUE(model.getTableRankedPlayers(7).empty());
  EXPECT_TRUE(recording.sink->reports.empty());
  controller.tournamentRankedPlayerList(7, {});
  ASSERT_EQ(recording.sink->reports.size(), 1u);
  EXPECT_EQ(recording.sink->reports[0].getText(), L"Tournament table with id 7");
  EXPECT_THROW(controller.clearRankedPlayerList(7), ObjectNotFoundException);
  EXPECT_EQ(recorder.take(), "");
}

TEST(SpecificTournamentModel, ANewLevelKeepsTheBreakState) {
  SpecificTournamentModel model(42);
  SpecificTournamentController controller(model);
  using BreakState = TournamentLevelInformation::BreakState;
  const auto states = [&] {
    return std::pair(model.getLevelInformation().getBreakState(), model.getNextLevelInformation().getBreakState());
  };
  controller.breakInfo(60);
  EXPECT_EQ(states(), std::pair(BreakState::STARTED, BreakState::STARTED));
  controller.levelInfo(TournamentLevelInformation(3));
  EXPECT_EQ(model.getLevelInformation().getLevelNumber(), 3);
  controller.breakEnded();
  EXPECT_EQ(states(), std::pair(BreakState::ENDED, BreakState::STARTED));
}

TEST(SpecificTournamentsHandler, OneModelForEachTournamentUntilItIsDestroyed) {
  auto& first = SpecificTournamentsHandler::getInstance().getTournamentModel(1);
  EXPECT_EQ(&SpecificTournamentsHandler::getInstance().getTournamentModel(1), &first);
  EXPECT_NE(&SpecificTournamentsHandler::getInstance().getTournamentModel(2), &first);
  SpecificTournamentController(first).playersNotification(1, 2, 3);
  SpecificTournamentsHandler::destroyInstance();
  SpecificTournamentsHandler::destroyInstance();
  EXPECT_EQ(SpecificTournamentsHandler::getInstance().getTournamentModel(1).getBasicInformation(),
            TournamentBaseModel());
  SpecificTournamentsHandler::destroyInstance();
}

TEST(SpecificTournamentModel, ReadersNeverSeeHalfAChange) {
  SpecificTournamentModel model(42);
  std::atomic<bool> done = false;
  std::atomic<int> torn = 0;
  const auto readUntilDone = [&] {
    while (!done) {
      const TournamentBaseModel basic = model.getBasicInformation();
      const bool together = basic.getNumberOfPlayersRemaining() == basic.getNumberOfEntrants()
                            && basic.getAverageChipStack() == basic.getNumberOfEntrants();
      // Every batch adds or removes two players together.
      if (!together || Sizes().readPlayers(model) % 2 != 0) ++torn;
      const Recorder passingBy(model);
    }
  };
  std::thread readers[] = {std::thread(readUntilDone), std::thread(readUntilDone), std::thread(readUntilDone)};
  SpecificTournamentController controller(model);
  for (int i = 0; i < 2000; ++i) {
    controller.playersNotification(i, i, i);
    controller.updateRegisteredPlayers({lobbyPlayer(i), lobbyPlayer(i + 1)}, {});
    controller.updateRegisteredPlayers({}, {i, i + 1});
  }
  done = true;
  for (std::thread& reader : readers) reader.join();
  EXPECT_EQ(torn, 0);
}

}  // namespace
}  // namespace Tessel
