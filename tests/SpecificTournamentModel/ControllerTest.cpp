#include <gtest/gtest.h>
#include <herald/SpecificTournamentModel/SpecificTournamentController.h>
#include <herald/SpecificTournamentModel/SpecificTournamentsHandler.h>
#include <herald/SpecificTournamentModel/TournamentUpdateObjects.h>
#include <herald/platform/keystone/TypeName.h>
#include <tests/SpecificTournamentModel/TournamentValues.h>
#include <tests/support/ManualClock.h>
#include <tests/support/RecordingSink.h>

#include <atomic>
#include <memory>
#include <thread>

namespace Tessel {
namespace {

class Recorder : public MVCObserver {
 public:
  explicit Recorder(SpecificTournamentModel& observed) : model(observed) { model.addObserver(*this); }
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;
  ~Recorder() override { model.removeObserver(*this); }

  void update(const NotificationUpdateObject& update) override {
    updates.push_back(classNameOf(typeid(update)));
    last.reset(update.clone());
  }

  /// The classes of the updates since the last call.
  std::vector<std::string> take() { return std::exchange(updates, {}); }

  SpecificTournamentModel& model;
  std::vector<std::string> updates;
  std::unique_ptr<NotificationUpdateObject> last;
};

using Updates = std::vector<std::string>;

// The bits 5 (rebuys) or none, with an add-on.
TourSummary summary(int tournamentId, bool rebuys) {
  ByteStream body;
  const auto text = [&](const wchar_t* value) { TsString(value).write(body); };
  const auto money = [&](int unit, std::int64_t amount) { MoneyInfo(Money(amount, unit)).write(body); };
  body << tournamentId << (rebuys ? 1 << 5 : 0) << std::int8_t{2} << std::int16_t{9000};
  for (const wchar_t* name : {L"short", L"long", L"description"}) text(name);
  body << std::int8_t{2} << std::int8_t{0};
  for (const int number : {10, 2, 90, 10}) body << number;
  body << std::int8_t{9};
  text(L"ticket");
  money(1, 1000);
  money(1, 100);
  body << false << 3;
  money(1, 10000);
  body << std::int8_t{0};
  for (int i = 0; i < 3; ++i) money(1, 0);
  for (int i = 0; i < 3; ++i) body << std::int64_t{-1};
  body << std::int64_t{600000} << std::int16_t{-1} << false << -1;
  if (rebuys) {
    body << 3 << std::int64_t{3600000} << true;
    for (const int amount : {1500, 1000, 2000, 900}) money(1, amount);
  }
  body << std::int8_t{0};
  TourSummary result;
  EXPECT_TRUE(result.read(body));
  EXPECT_TRUE(body.eos());
  return result;
}

TEST(SpecificTournamentController, EachPieceOfNewsNotifiesOfItsPart) {
  const WithManualClock manual;
  manual.clock->calendar = 1000;
  SpecificTournamentModel model(42);
  SpecificTournamentController controller(model);
  Recorder recorder(model);

  const Updates global = {"TournamentGlobalInformationUpdateObject"};
  const Updates level = {"TournamentLevelInformationUpdateObject"};
  const Updates breaks = {"TournamentBreakUpdateObject"};
  const Updates rebuy = {"TournamentRebuyUpdateObject"};
  const Updates ranking = {"TournamentPlayerRankingUpdateObject"};
  const Updates players = {"TournamentRegisteredPlayersUpdateObject"};
  const Updates tables = {"TournamentTablesUpdateObject"};
  const Updates ranked = {"TournamentTableRankedPlayersUpdateObject"};
  const std::pair<std::function<void()>, Updates> rows[] = {
      {[&] { controller.tourGlobalInfo(summary(42, false)); }, global},
      {[&] { controller.tourGlobalInfo(summary(42, true)); }, {global[0], rebuy[0], rebuy[0]}},
      {[&] { controller.tourGlobalInfoUpdate(TourSummaryUpdate()); }, global},
      {[&] { controller.tournamentCancelled(); }, global},
      {[&] { controller.tournamentCancelled(); }, global},
      {[&] { controller.playersNotification(10, 7, 1500); }, {"TournamentBaseUpdateObject"}},
      {[&] { controller.playerInfo(SpecificLobbyPlayerInfo()); }, {"TournamentPlayerInformationUpdateObject"}},
      {[&] { controller.userRankInfo(rankedPlayer(7, 3)); }, ranking},
      {[&] {
         controller.tourRankInfo({rankedPlayer(1, 1), rankedPlayer(2, 2)});
       },
       ranking},
      {[&] { controller.levelInfo(TournamentLevelInformation(4)); }, level},
      {[&] { controller.nextLevelInfo(TournamentLevelInformation(5)); }, level},
      {[&] { controller.breakNotification(0, 1); }, breaks},
      {[&] { controller.breakNotification(-1, 10); }, {}},
      {[&] { controller.breakNotification(5, 0); }, {}},
      {[&] { controller.breakInfo(60); }, breaks},
      {[&] { controller.breakEnded(); }, breaks},
      {[&] { controller.noMoreBreaksNotification(); }, breaks},
      {[&] { controller.updateRegisteredPlayers({lobbyPlayer(3)}, {8}); }, players},
      {[&] { controller.clearRegisteredPlayers(); }, players},
      {[&] { controller.tournamentTablesUpdate({lobbyTable(4)}, {}); }, tables},
      {[&] { controller.tournamentRankedPlayerList(4, {rankedPlayer(1, 1)}); }, ranked},
      {[&] { controller.clearRankedPlayerList(4); }, ranked},
      {[&] { controller.clearTables(); }, tables},
      {[&] { controller.userRebuyInfo(1500, 2); }, rebuy},
      {[&] { controller.userRebuyPeriodEnded(); }, rebuy},
      {[&] { controller.userAddonInfo(9); }, rebuy},
      {[&] { controller.userAddonPeriodEnded(); }, rebuy},
  };
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    rows[i].first();
    EXPECT_EQ(recorder.take(), rows[i].second) << "row " << i;
  }
  EXPECT_TRUE(model.getRebuyInfo().hasRebuys());
  EXPECT_EQ(model.getRebuyInfo().getRebuyCost(), Money(1000, 1));
  EXPECT_EQ(model.getRebuyInfo().getRebuyAmount(), Money(1500, 1));
  EXPECT_EQ(model.getRebuyInfo().getTotalNumberOfAddons(), 1);
  EXPECT_EQ(model.getRebuyInfo().getAddonCost(), Money(900, 1));
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
  EXPECT_EQ(recorder.take(), Updates());
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
  std::vector<std::thread> readers;
  for (int reader = 0; reader < 3; ++reader) {
    readers.emplace_back([&] {
      while (!done) {
        const TournamentBaseModel basic = model.getBasicInformation();
        const bool together = basic.getNumberOfPlayersRemaining() == basic.getNumberOfEntrants()
                              && basic.getAverageChipStack() == basic.getNumberOfEntrants();
        Sizes sizes;
        model.readRegisteredPlayers(sizes);
        model.readTables(sizes);
        // Every batch adds or removes two players together.
        if (!together || sizes.playerCount % 2 != 0) ++torn;
        static_cast<void>(model.getBreakInformation());
        static_cast<void>(model.getPlayerRankingInformation());
        static_cast<void>(model.getLevelInformation());
        static_cast<void>(model.getNextLevelInformation());
        static_cast<void>(model.getTourSummary());
        static_cast<void>(model.getPlayerInfo());
        static_cast<void>(model.getRebuyInfo());
        static_cast<void>(model.getTableRankedPlayers(4));
        const Recorder passingBy(model);
      }
    });
  }
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
