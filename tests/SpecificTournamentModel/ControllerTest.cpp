#include <gtest/gtest.h>
#include <herald/SpecificTournamentModel/SpecificTournamentController.h>
#include <herald/SpecificTournamentModel/SpecificTournamentsHandler.h>
#include <herald/SpecificTournamentModel/TournamentUpdateObjects.h>
#include <herald/platform/keystone/TypeName.h>
#include <tests/SpecificTournamentModel/TournamentValues.h>
#include <tests/support/Golden.h>
#include <tests/support/ManualClock.h>
#include <tests/support/RecordingSink.h>

#include <atomic>
#include <memory>
#include <thread>
#include <tuple>

namespace Tessel {
namespace {

class Recorder : public MVCObserver {
 public:
  explicit Recorder(SpecificTournamentModel& observed) : model(observed) { model.addObserver(*this); }
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;
  ~Recorder() override { model.removeObserver(*this); }

  void update(const NotificationUpdateObject& update) override {
    std::string part = classNameOf(typeid(update));
    for (const std::string_view rest : {"Tournament", "UpdateObject"}) part.erase(part.find(rest), rest.size());
    updates += ' ' + part;
    last.reset(update.clone());
  }

  /// The parts of the model that the updates since the last call were about.
  std::string take() { return std::exchange(updates, ""); }

  SpecificTournamentModel& model;
  std::string updates;
  std::unique_ptr<NotificationUpdateObject> last;
};

// One with rebuys and an add-on.
TourSummary summaryWithRebuys() {
  ByteStream in(goldenCase("SpecificTourSummary").bytes);
  TourSummary summary;
  EXPECT_TRUE(summary.read(in));
  return summary;
}

TEST(SpecificTournamentController, EachPieceOfNewsNotifiesOfItsPart) {
  const WithManualClock manual;
  manual.clock->calendar = 1000;
  SpecificTournamentModel model(42);
  SpecificTournamentController controller(model);
  Recorder recorder(model);

  const std::pair<std::function<void()>, std::string> rows[] = {
      {[&] { controller.tourGlobalInfo(TourSummary()); }, " GlobalInformation"},
      {[&] { controller.tourGlobalInfo(summaryWithRebuys()); }, " GlobalInformation Rebuy Rebuy"},
      {[&] { controller.tourGlobalInfoUpdate(TourSummaryUpdate()); }, " GlobalInformation"},
      {[&] { controller.tournamentCancelled(); }, " GlobalInformation"},
      {[&] { controller.tournamentCancelled(); }, " GlobalInformation"},
      {[&] { controller.playersNotification(10, 7, 1500); }, " Base"},
      {[&] { controller.playerInfo(SpecificLobbyPlayerInfo()); }, " PlayerInformation"},
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
  }
  EXPECT_TRUE(model.getRebuyInfo().hasRebuys());
  EXPECT_EQ(model.getRebuyInfo().getRebuyCost(), Money(-440, 44));
  EXPECT_EQ(model.getRebuyInfo().getRebuyAmount(), Money(430, 43));
  EXPECT_EQ(model.getRebuyInfo().getTotalNumberOfAddons(), 1);
  EXPECT_EQ(model.getRebuyInfo().getAddonCost(), Money(460, -46));
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
  controller.tournamentTablesUpdate({lobbyTable(4)}, {9});
  const auto& tables = dynamic_cast<const TournamentTablesUpdateObject&>(*recorder.last);
  EXPECT_EQ(tables.getModifiedTables(), (TsArray<int>{4, 9}));
  controller.tournamentRankedPlayerList(4, {rankedPlayer(1, 1)});
  EXPECT_EQ(dynamic_cast<const TournamentTableRankedPlayersUpdateObject&>(*recorder.last).getTableId(), 4);
  EXPECT_EQ(playerIds(model.getTableRankedPlayers(4)), std::vector<int>{1});
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

// The sizes of the collections, seen under the lock.
class Sizes : public TournamentRegisteredPlayersReader, public TournamentTablesReader {
 public:
  void read(const TournamentRegisteredPlayers& players) override { playerCount = players.getAllPlayerIds().size(); }
  void read(const TournamentTables& tables) override { tableCount = tables.getAllTableIds().size(); }

  int playerCount = 0;
  int tableCount = 0;
};

TEST(SpecificTournamentModel, ReadersNeverSeeHalfAChange) {
  SpecificTournamentModel model(42);
  std::atomic<bool> done = false;
  std::atomic<int> torn = 0;
  const auto readUntilDone = [&] {
    while (!done) {
      const TournamentBaseModel basic = model.getBasicInformation();
      const bool together = basic.getNumberOfPlayersRemaining() == basic.getNumberOfEntrants()
                            && basic.getAverageChipStack() == basic.getNumberOfEntrants();
      Sizes sizes;
      model.readRegisteredPlayers(sizes);
      model.readTables(sizes);
      // Every batch adds or removes two players together.
      if (!together || sizes.playerCount % 2 != 0) ++torn;
      [[maybe_unused]] const std::tuple copies(model.getBreakInformation(), model.getPlayerRankingInformation(),
                                               model.getLevelInformation(), model.getNextLevelInformation(),
                                               model.getTourSummary(), model.getPlayerInfo(), model.getRebuyInfo(),
                                               model.getTableRankedPlayers(4));
      const Recorder passingBy(model);
    }
  };
  std::thread readers[] = {std::thread(readUntilDone), std::thread(readUntilDone), std::thread(readUntilDone)};
  SpecificTournamentController controller(model);
  for (int i = 0; i < 2000; ++i) {
    controller.playersNotification(i, i, i);
    controller.updateRegisteredPlayers({lobbyPlayer(i), lobbyPlayer(i + 1)}, {});
    controller.updateRegisteredPlayers({}, {i, i + 1});
    controller.tournamentTablesUpdate({lobbyTable(4)}, {});
    controller.tournamentRankedPlayerList(4, {rankedPlayer(i, 1)});
    controller.tourRankInfo({rankedPlayer(i, 1)});
    controller.levelInfo(TournamentLevelInformation(i));
    controller.breakInfo(i);
    controller.userRebuyInfo(i, i);
  }
  done = true;
  for (std::thread& reader : readers) reader.join();
  EXPECT_EQ(torn, 0);
}

}  // namespace
}  // namespace Tessel
