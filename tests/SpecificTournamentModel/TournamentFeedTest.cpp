#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/SpecificTournamentModel/TournamentValues.h>
#include <tests/support/Golden.h>
#include <tests/support/ManualClock.h>
#include <tests/support/RecordingSink.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace Tessel {
namespace {

using namespace WireBytes;

// Tells the parts of the model of which it hears, by the operations that are called.
class Parts : public TournamentUpdateVisitor, public MVCObserver {
 public:
  explicit Parts(MVCModel& model) : subscription_(model, *this) {}

  void update(const NotificationUpdateObject& update) override { EXPECT_TRUE(accept(update, *this)); }

  void visit(const TournamentBaseUpdateObject&) override { heard_ += " base"; }
  void visit(const TournamentBreakUpdateObject&) override { heard_ += " break"; }
  void visit(const TournamentPlayerRankingUpdateObject&) override { heard_ += " ranking"; }
  void visit(const TournamentLevelInformationUpdateObject&) override { heard_ += " level"; }
  void visit(const TournamentGlobalInformationUpdateObject&) override { heard_ += " global"; }
  void visit(const TournamentPlayerInformationUpdateObject&) override { heard_ += " user"; }
  void visit(const TournamentRebuyUpdateObject&) override { heard_ += " rebuy"; }
  void visit(const TournamentRegisteredPlayersUpdateObject&) override { heard_ += " players"; }
  void visit(const TournamentTablesUpdateObject&) override { heard_ += " tables"; }
  void visit(const TournamentTableRankedPlayersUpdateObject& update) override {
    heard_ += " table" + std::to_string(update.getTableId());
  }

  std::string take() { return std::exchange(heard_, ""); }

 private:
  std::string heard_;
  Subscription subscription_;
};

template <class Message>
void deliver(AbstractClientMessageHandler& handler, ByteStream body) {
  Message message;
  EXPECT_TRUE(message.read(body));
  message.handle(handler);
}

template <class Message>
void deliverGolden(AbstractClientMessageHandler& handler) {
  deliver<Message>(handler, ByteStream(goldenCase(typeName<Message>()).bytes));
}

template <class... Fields>
ByteStream bodyOf(const Fields&... fields) {
  ByteStream body;
  (body << ... << fields);
  return body;
}

TEST(TournamentFeed, BringsEachMessageIntoItsPartOfTheModel) {
  const WithManualClock manual;
  const WithRecordingSink recording;
  constexpr int TOURNAMENT = 1004;  // of the golden summary
  SpecificTournamentModel model(TOURNAMENT);
  TournamentFeed feed(model);
  Parts parts(model);

  const auto rebuys = [&](std::int64_t left, bool isAddon) {
    deliver<TournamentRebuyNotificationMsg>(feed, bodyOf(left, isAddon, 2));
  };
  const auto table = [&] {
    deliver<LobbyTableList>(feed,
                            bodyOf(number16(1), 4, L"T", number16(9), byte(0), Money(1, 1), Money(2, 1), number16(0)));
  };
  const auto notify = [&](AllowedTournamentNotification event) {
    deliver<TourNotification>(feed, bodyOf(byte(static_cast<int>(event))));
  };
  const std::pair<std::function<void()>, std::string> rows[] = {
      {[&] { deliverGolden<SpecificTourSummary>(feed); }, " global rebuy rebuy base user"},
      {[&] { notify(AllowedTournamentNotification::STARTED); }, ""},
      {[&] { notify(AllowedTournamentNotification::CANCELLED); }, " global"},
      {[&] { deliverGolden<TourLevelInfoMsg>(feed); }, " level"},
      {[&] { deliverGolden<TourNextLevelInfoMsg>(feed); }, " level level"},
      {[&] { deliverGolden<TourBreakInfo>(feed); }, " base break"},
      {[&] { deliverGolden<TourBreakEnd>(feed); }, " break"},
      {[&] { deliver<TourBreakNotification>(feed, bodyOf(number64(-1), number64(-1))); }, " break"},
      {[&] { deliverGolden<TourUserRanking>(feed); }, " ranking"},
      {[&] { deliverGolden<TourPlayerRankingListInfo>(feed); }, " ranking"},
      {[&] { deliverGolden<LobbyPlayerList>(feed); }, " players"},
      {table, " tables"},
      {[&] { deliver<LobbyTablePlayerList>(feed, bodyOf(4, number16(0))); }, " table4"},
      {[&] { rebuys(60'000, false); }, " rebuy"},
      {[&] { rebuys(-1, false); }, " rebuy"},
      {[&] { rebuys(60'000, true); }, " rebuy"},
      {[&] { rebuys(-1, true); }, " rebuy"},
      {[&] { feed.unfollow(), deliverGolden<SpecificTourSummary>(feed), table(), rebuys(1, false); }, ""},
  };
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    rows[i].first();
    EXPECT_EQ(parts.take(), rows[i].second) << "row " << i;
  }
  EXPECT_TRUE(model.getRebuyInfo().isAfterAddonPeriod());
}

TEST(TournamentFeed, PassesOverTheSummaryOfAnotherTournament) {
  SpecificTournamentModel model(9);
  TournamentFeed feed(model);
  Parts parts(model);
  deliverGolden<SpecificTourSummary>(feed);
  deliverGolden<SpecificTourSummaryUpdate>(feed);
  EXPECT_EQ(parts.take(), "");
}

TEST(TournamentFeed, TurnsMillisecondsIntoTheSecondsOfBreaks) {
  const WithManualClock manual;
  manual.clock->calendar = 1000;
  SpecificTournamentModel model(9);
  TournamentFeed feed(model);

  deliver<TourBreakNotification>(feed, bodyOf(number64(90'999), number64(300'000)));
  EXPECT_EQ(model.getBreakInformation().getNextBreakTime().getSeconds(), 1090);
  EXPECT_EQ(model.getBreakInformation().getNextBreakDuration().getSeconds(), 300);

  deliver<TourBreakInfo>(feed, bodyOf(number64(45'000), 10, 6, number64(2500)));
  EXPECT_EQ(model.getBreakInformation().getBreakEndTime().getSeconds(), 1045);
  EXPECT_EQ(model.getBasicInformation().getAverageChipStack(), 2500);

  deliver<TourBreakInfo>(feed, bodyOf(number64(INT64_MAX), 10, 6, number64(2500)));
  EXPECT_GT(model.getBreakInformation().getBreakEndTime().getSeconds(), 1045);
}

TEST(TournamentUpdateVisitor, PassesOverTheUpdatesOfOtherModels) {
  SpecificTournamentModel model(9);
  Parts parts(model);
  EXPECT_FALSE(accept(NotificationUpdateObject(model), parts));
  EXPECT_EQ(parts.take(), "");
}

TEST(Subscription, EndsWithItsScopeAndMoves) {
  static_assert(!std::is_copy_constructible_v<Subscription>);
  struct Counter : MVCObserver {
    void update(const NotificationUpdateObject&) override { ++calls; }
    int calls = 0;
  } counter;
  SpecificTournamentModel model(9);
  const auto callsOfOneChange = [&] { return counter.calls = 0, model.tournamentCancelled(), counter.calls; };

  Subscription kept;
  EXPECT_FALSE(kept.isActive());
  {
    Subscription made(model, counter);
    EXPECT_EQ(callsOfOneChange(), 1);
    kept = std::move(made);
  }
  EXPECT_EQ(callsOfOneChange(), 1);
  kept.end();
  EXPECT_EQ(callsOfOneChange(), 0);
  { const Subscription scoped(model, counter); }
  EXPECT_EQ(callsOfOneChange(), 0);
}

}  // namespace
}  // namespace Tessel
