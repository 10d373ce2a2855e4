#include <gtest/gtest.h>
#include <herald/SpecificTournamentModel/TournamentBreakModificationObjects.h>
#include <tests/SpecificTournamentModel/TournamentValues.h>
#include <tests/support/ManualClock.h>
#include <tests/support/RecordingSink.h>

#include <functional>
#include <string>

namespace Tessel {
namespace {

constexpr TesselTime BREAK_BEGIN(1000);
constexpr TesselTimeSpan BREAK_DURATION(300);
constexpr TesselTime BREAK_END(1300);

enum State { NO_INFO, BETWEEN, ON_BREAK, NO_MORE };
constexpr State STATES[] = {NO_INFO, BETWEEN, ON_BREAK, NO_MORE};

State stateOf(const TournamentBreakModel& breaks) {
  if (!breaks.hasValidInfo()) return NO_INFO;
  if (!breaks.hasMoreBreaks()) return NO_MORE;
  return breaks.isOnBreak() ? ON_BREAK : BETWEEN;
}

TournamentBreakModel modelIn(State state) {
  TournamentBreakModel breaks;
  if (state == BETWEEN) breaks.setNotOnBreakStatus(BREAK_BEGIN, BREAK_DURATION);
  if (state == ON_BREAK) breaks.setOnBreakStatus(BREAK_END);
  if (state == NO_MORE) breaks.setNoMoreBreaks();
  return breaks;
}

TEST(TournamentBreakModel, EveryOperationInEveryState) {
  const struct {
    State after[4];          // by the state before
    std::wstring forbidden;  // the change that is refused after the last break
    int line;
    std::function<void(TournamentBreakModel&)> run;
  } operations[] = {
      {{NO_INFO, NO_INFO, NO_INFO, NO_INFO}, L"", 0, [](auto& b) { b.setNoInfo(); }},
      {{ON_BREAK, ON_BREAK, ON_BREAK, NO_MORE}, L"OnBreak", 35, [](auto& b) { b.setOnBreakStatus(TesselTime(5)); }},
      {{BETWEEN, BETWEEN, BETWEEN, NO_MORE},
       L"BetweenBreaks",
       41,
       [](auto& b) { b.setNotOnBreakStatus(TesselTime(5), TesselTimeSpan(6)); }},
      {{NO_INFO, BETWEEN, NO_INFO, NO_MORE}, L"", 0, [](auto& b) { b.setEndBreakStatus(); }},
      {{NO_MORE, NO_MORE, NO_MORE, NO_MORE}, L"", 0, [](auto& b) { b.setNoMoreBreaks(); }},
  };
  for (const auto& operation : operations) {
    for (const State before : STATES) {
      SCOPED_TRACE(testing::Message() << "operation " << &operation - operations << " in state " << before);
      TournamentBreakModel breaks = modelIn(before);
      if (before == NO_MORE && !operation.forbidden.empty())
        expectFailure<IllegalStateTransitionException>([&] { operation.run(breaks); }, L"TournamentBreakModel",
                                                       operation.line, L"NoMoreBreaks", operation.forbidden);
      else
        operation.run(breaks);
      EXPECT_EQ(stateOf(breaks), operation.after[before]);
    }
  }
}

TEST(TournamentBreakModel, EveryQueryInEveryState) {
  const struct {
    State allowedIn;
    std::int64_t answer;
    std::wstring name;
    int line;
    std::function<std::int64_t(const TournamentBreakModel&)> ask;
  } queries[] = {
      {ON_BREAK, 1300, L"getBreakEndTime", 88, [](const auto& b) { return b.getBreakEndTime().getSeconds(); }},
      {BETWEEN, 1000, L"getNextBreakTime", 97, [](const auto& b) { return b.getNextBreakTime().getSeconds(); }},
      {BETWEEN, 300, L"getNextBreakDuration", 106, [](const auto& b) { return b.getNextBreakDuration().getSeconds(); }},
  };
  for (const State state : STATES) {
    const TournamentBreakModel breaks = modelIn(state);
    for (const auto& query : queries) {
      if (state == query.allowedIn)
        EXPECT_EQ(query.ask(breaks), query.answer);
      else
        expectFailure<IllegalAccessException>([&] { query.ask(breaks); }, L"TournamentBreakModel", query.line,
                                              query.name);
    }
  }
  expectFailure<IllegalAccessException>([] { static_cast<void>(TournamentBreakModel().hasMoreBreaks()); },
                                        L"TournamentBreakModel", 79, L"hasMoreBreaks");
}

TEST(TournamentBreakModel, EveryModificationInEveryState) {
  const WithManualClock manual;
  const WithRecordingSink recording;
  manual.clock->calendar = 500;
  TournamentOnBreakModificationObject onBreak(60);
  TournamentNotOnBreakModificationObject notOnBreak(30, 90);
  TournamentNotOnBreakModificationObject breakEnded(-1, -1);
  TournamentNoMoreBreaksModificationObject noMoreBreaks;
  const std::pair<TournamentBreakModificationObject*, State> modifications[] = {
      {&onBreak, ON_BREAK}, {&notOnBreak, BETWEEN}, {&breakEnded, NO_INFO}, {&noMoreBreaks, NO_MORE}};
  for (const auto& [modification, after] : modifications) {
    for (const State before : STATES) {
      SCOPED_TRACE(std::to_string(before) + " to " + std::to_string(after));
      TournamentBreakModel breaks = modelIn(before);
      const std::unique_ptr<TournamentBreakModificationObject> clone(modification->clone());
      EXPECT_TRUE(clone->modify(breaks));
      EXPECT_EQ(stateOf(breaks), after);
      if (after == ON_BREAK) {
        EXPECT_EQ(breaks.getBreakEndTime(), TesselTime(560));
      }
      if (after == BETWEEN) {
        EXPECT_EQ(breaks.getNextBreakTime(), TesselTime(530));
        EXPECT_EQ(breaks.getNextBreakDuration(), TesselTimeSpan(90));
      }
    }
  }
  EXPECT_TRUE(recording.sink->reports.empty());
}

}  // namespace
}  // namespace Tessel
