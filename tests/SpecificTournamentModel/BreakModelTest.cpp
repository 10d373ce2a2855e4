#include <gtest/gtest.h>
#include <herald/SpecificTournamentModel/TournamentBreakModificationObjects.h>
#include <tests/support/ManualClock.h>
#include <tests/support/RecordingSink.h>

#include <functional>
#include <string>

namespace Tessel {
namespace {

constexpr TesselTime BREAK_BEGIN(1000);
constexpr TesselTimeSpan BREAK_DURATION(300);
constexpr TesselTime BREAK_END(1300);

enum State { NO_INFORMATION, BETWEEN_BREAKS, ON_BREAK, NO_MORE_BREAKS };
constexpr State STATES[] = {NO_INFORMATION, BETWEEN_BREAKS, ON_BREAK, NO_MORE_BREAKS};

State stateOf(const TournamentBreakModel& breaks) {
  if (!breaks.hasValidInfo()) return NO_INFORMATION;
  if (!breaks.hasMoreBreaks()) return NO_MORE_BREAKS;
  return breaks.isOnBreak() ? ON_BREAK : BETWEEN_BREAKS;
}

TournamentBreakModel modelIn(State state) {
  TournamentBreakModel breaks;
  if (state == BETWEEN_BREAKS) breaks.setNotOnBreakStatus(BREAK_BEGIN, BREAK_DURATION);
  if (state == ON_BREAK) breaks.setOnBreakStatus(BREAK_END);
  if (state == NO_MORE_BREAKS) breaks.setNoMoreBreaks();
  return breaks;
}

TEST(TournamentBreakModel, EveryOperationInEveryState) {
  struct Operation {
    const char* name;
    std::function<void(TournamentBreakModel&)> run;
    State after[4];                // by the state before
    const wchar_t* refusedDetail;  // after the last break; null: not refused
    int refusedLine;
  };
  const Operation operations[] = {
      {"setNoInfo",
       [](auto& b) { b.setNoInfo(); },
       {NO_INFORMATION, NO_INFORMATION, NO_INFORMATION, NO_INFORMATION},
       nullptr,
       0},
      {"setOnBreakStatus",
       [](auto& b) { b.setOnBreakStatus(TesselTime(5)); },
       {ON_BREAK, ON_BREAK, ON_BREAK, NO_MORE_BREAKS},
       L"OnBreak",
       35},
      {"setNotOnBreakStatus",
       [](auto& b) { b.setNotOnBreakStatus(TesselTime(5), TesselTimeSpan(6)); },
       {BETWEEN_BREAKS, BETWEEN_BREAKS, BETWEEN_BREAKS, NO_MORE_BREAKS},
       L"BetweenBreaks",
       41},
      {"setEndBreakStatus",
       [](auto& b) { b.setEndBreakStatus(); },
       {NO_INFORMATION, BETWEEN_BREAKS, NO_INFORMATION, NO_MORE_BREAKS},
       nullptr,
       0},
      {"setNoMoreBreaks",
       [](auto& b) { b.setNoMoreBreaks(); },
       {NO_MORE_BREAKS, NO_MORE_BREAKS, NO_MORE_BREAKS, NO_MORE_BREAKS},
       nullptr,
       0},
  };
  for (const Operation& operation : operations) {
    for (const State before : STATES) {
      SCOPED_TRACE(std::string(operation.name) + " in state " + std::to_string(before));
      TournamentBreakModel breaks = modelIn(before);
      bool refused = false;
      try {
        operation.run(breaks);
      } catch (const IllegalStateTransitionException& failure) {
        refused = true;
        EXPECT_EQ(failure.getFile(), L"SpecificTournamentModel/TournamentBreakModel");
        EXPECT_EQ(failure.getText(), L"NoMoreBreaks");
        EXPECT_EQ(failure.getDetail(), operation.refusedDetail);
        EXPECT_EQ(failure.getLine(), operation.refusedLine);
      }
      EXPECT_EQ(refused, operation.refusedDetail != nullptr && before == NO_MORE_BREAKS);
      EXPECT_EQ(stateOf(breaks), operation.after[before]);
    }
  }
}

TEST(TournamentBreakModel, EveryQueryInEveryState) {
  struct Query {
    std::function<std::int64_t(const TournamentBreakModel&)> ask;
    State allowedIn;
    std::int64_t answer;
    const wchar_t* name;
    int line;
  };
  const Query queries[] = {
      {[](const auto& b) { return b.getBreakEndTime().getSeconds(); }, ON_BREAK, 1300, L"getBreakEndTime", 88},
      {[](const auto& b) { return b.getNextBreakTime().getSeconds(); }, BETWEEN_BREAKS, 1000, L"getNextBreakTime", 97},
      {[](const auto& b) { return b.getNextBreakDuration().getSeconds(); }, BETWEEN_BREAKS, 300,
       L"getNextBreakDuration", 106},
  };
  const auto expectRefused = [](const auto& ask, const wchar_t* name, int line) {
    try {
      ask();
      ADD_FAILURE() << "was answered";
    } catch (const IllegalAccessException& failure) {
      EXPECT_EQ(failure.getFile(), L"SpecificTournamentModel/TournamentBreakModel");
      EXPECT_EQ(failure.getText(), name);
      EXPECT_EQ(failure.getDetail(), L"");
      EXPECT_EQ(failure.getLine(), line);
    }
  };
  for (const State state : STATES) {
    const TournamentBreakModel breaks = modelIn(state);
    for (const Query& query : queries) {
      if (state == query.allowedIn) {
        EXPECT_EQ(query.ask(breaks), query.answer);
      } else {
        expectRefused([&] { query.ask(breaks); }, query.name, query.line);
      }
    }
  }
  expectRefused([] { static_cast<void>(TournamentBreakModel().hasMoreBreaks()); }, L"hasMoreBreaks", 79);
}

TEST(TournamentBreakModel, ARefusedChangeKeepsTheTimes) {
  TournamentBreakModel breaks = modelIn(ON_BREAK);
  breaks.setNoMoreBreaks();
  EXPECT_THROW(breaks.setOnBreakStatus(TesselTime(5)), IllegalStateTransitionException);
  breaks.setNoInfo();
  breaks.setNotOnBreakStatus(BREAK_BEGIN, BREAK_DURATION);
  EXPECT_EQ(breaks.getNextBreakTime(), BREAK_BEGIN);
}

TEST(TournamentBreakModel, EveryModificationInEveryState) {
  const WithManualClock manual;
  const WithRecordingSink recording;
  manual.clock->calendar = 500;
  TournamentOnBreakModificationObject onBreak(60);
  TournamentNotOnBreakModificationObject notOnBreak(30, 90);
  TournamentNotOnBreakModificationObject breakEnded(-1, -1);
  TournamentNoMoreBreaksModificationObject noMoreBreaks;
  const std::pair<TournamentBreakModificationObject*, State> modifications[] = {{&onBreak, ON_BREAK},
                                                                                {&notOnBreak, BETWEEN_BREAKS},
                                                                                {&breakEnded, NO_INFORMATION},
                                                                                {&noMoreBreaks, NO_MORE_BREAKS}};
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
      if (after == BETWEEN_BREAKS) {
        EXPECT_EQ(breaks.getNextBreakTime(), TesselTime(530));
        EXPECT_EQ(breaks.getNextBreakDuration(), TesselTimeSpan(90));
      }
    }
  }
  EXPECT_TRUE(recording.sink->reports.empty());
}

}  // namespace
}  // namespace Tessel
