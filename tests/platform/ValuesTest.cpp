#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/ManualClock.h>
#include <tests/support/RecordingSink.h>

#include <ctime>
#include <limits>
#include <set>
#include <thread>
#include <tuple>

namespace Tessel {
namespace {

constexpr std::int64_t LOWEST = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t HIGHEST = std::numeric_limits<std::int64_t>::max();

template <class Mask>
void expectEveryBitToBeOnItsOwn() {
  constexpr int BITS = 8 * static_cast<int>(sizeof(Mask));
  for (int bit = -1; bit <= BITS; ++bit) {
    Mask mask = 0;
    BitMasking::setBit(mask, bit);
    for (int other = -1; other <= BITS; ++other)
      EXPECT_EQ(BitMasking::getBit(mask, other), other == bit && bit >= 0 && bit < BITS) << bit << ' ' << other;
    BitMasking::setBit(mask = static_cast<Mask>(-1), bit);
    EXPECT_EQ(mask, static_cast<Mask>(-1));
  }
}

TEST(BitMasking, GetsAndSetsEachBitAlone) {
  expectEveryBitToBeOnItsOwn<int>();
  expectEveryBitToBeOnItsOwn<std::int8_t>();
  int mask = 0;
  BitMasking::setBit(mask, 31);
  EXPECT_EQ(mask, std::numeric_limits<int>::min());
}

TEST(Card, PrintsRankThenSuit) {
  const struct {
    int color, type;
    const wchar_t* text;
    bool isHidden;
  } cases[] = {{2, 12, L"Ah", false}, {0, 0, L"2c", false}, {1, 8, L"Td", false}, {3, 11, L"Ks", false},
               {4, 13, L"??", true},  {4, 3, L"5?", true},  {0, 13, L"?c", true}, {-1, 14, L"??", true}};
  for (const auto& [color, type, text, isHidden] : cases) {
    const Card card(static_cast<Card::Color>(color), static_cast<Card::Type>(type));
    EXPECT_EQ(card.toCString(), text);
    EXPECT_EQ(card.isHidden(), isHidden) << color << ' ' << type;
  }
  EXPECT_TRUE(Card().isHidden());
}

TEST(Card, ARandomCardIsAnyOfFiftyTwo) {
  std::set<std::wstring> seen;
  Card card;
  for (int i = 0; i < 5000; ++i) {
    card.setRandomCard();
    ASSERT_FALSE(card.isHidden());
    seen.insert(card.toCString());
  }
  EXPECT_EQ(seen.size(), 52u);
}

TEST(TsArray, RefusesANegativeSize) {
  EXPECT_THROW(TsArray<int>(-1), std::invalid_argument);
  TsArray<int> array = {7};
  EXPECT_THROW(array.setSize(-1), std::invalid_argument);
  EXPECT_EQ(array, TsArray<int>{7});
}

TEST(KVRException, ToldByWhatItSaysWithItsDetail) {
  EXPECT_STREQ(MessageException(L"file", 1, L"text \xE9", L"detail").what(), "text \u00E9: detail");
  EXPECT_STREQ(KeystoneException(L"file", 1, L"text").what(), "text");
}

TEST(StandardErrorSink, WritesOneLineEachAndStandsInForNone) {
  const WithRecordingSink before;
  BugReporter::getInstance().setSink(nullptr);
  testing::internal::CaptureStderr();
  MessageException exception(L"file", 1, L"a\nb", L"c\r\td\\");
  exception.setCaughtBy(L"other", 2);
  exception.report();
  BugReporter::getInstance().trace(L"%s", L"x\ny");
  Log::append(L"l\nm", L"n", 5);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "report: file(1): a\\nb: c\\r\\td\\\\, caught by other(2)\ntrace: x\\ny\nlog 5: n: l\\nm\n");
  EXPECT_TRUE(before.sink->reports.empty());
}

TEST(Player, KeepsWhatItIsBuiltFrom) {
  EXPECT_EQ(User(7, L"Ann").toDebugString(), L"[User: Id=7, NickName=Ann]");
  const RankedPlayer player(7, 1, L"Ann", Money(500, 3), true);
  EXPECT_EQ(
      std::tuple(player.getPlayerId(), player.getPosition(), player.getName(), player.getChipStack(), player.isVIP()),
      std::tuple(7, 1, L"Ann", Money(500, 3), true));
  EXPECT_NE(player, RankedPlayer());
}

template <class Time, class Span>
void expectArithmeticOf() {
  EXPECT_EQ(Time(10) + Span(-3), Time(7));
  EXPECT_EQ(Time(10) - Time(13), Span(-3));
  EXPECT_EQ(Time(HIGHEST) + Span(1), Time(HIGHEST));
  EXPECT_EQ(Time(LOWEST) + Span(-1), Time(LOWEST));
  EXPECT_EQ(Time(HIGHEST) - Time(-1), Span(HIGHEST));
  EXPECT_EQ(Time(-2) - Time(HIGHEST), Span(LOWEST));
  EXPECT_EQ(Time(0) - Time(LOWEST), Span(HIGHEST));
  EXPECT_LT(Time(-1), Time());
}

TEST(Time, AddsAndSubtractsWithinItsRange) {
  expectArithmeticOf<TsTime, TsTimeSpan>();
  expectArithmeticOf<TesselTime, TesselTimeSpan>();
}

TEST(Time, AnOffsetCountsFromThePresent) {
  const WithManualClock with;
  with.clock->calendar = 1'000;
  EXPECT_EQ(TimeUtils::getTime(), TsTime(1'000));
  EXPECT_EQ(TimeUtils::getTimeFromOffset(-1), TsTime(999));
  EXPECT_EQ(TesselTime::createFromSecondsOffset(5), TesselTime(1'005));
  EXPECT_EQ(TesselTime::createFromSecondsOffset(HIGHEST), TesselTime(HIGHEST));
}

TEST(SystemClock, ReadsTheInstalledSourceOrTheOperatingSystem) {
  {
    const WithManualClock with;
    with.clock->ticks = 0xFFFFFFFF;
    with.clock->process = 2'500;
    EXPECT_EQ(SystemClock::getTickCount(), 0xFFFFFFFF);
    EXPECT_EQ(SystemClock::getProcessClock(), 2'500);
    EXPECT_EQ(SystemClock::setSource(nullptr), with.clock);
    EXPECT_NE(SystemClock::getProcessClock(), 2'500);
  }
  EXPECT_NEAR(static_cast<double>(SystemClock::getCalendarTime()), static_cast<double>(std::time(nullptr)), 2);
  const std::int64_t process = SystemClock::getProcessClock();
  const std::uint32_t ticks = SystemClock::getTickCount();
  while (SystemClock::getTickCount() - ticks < 5) std::this_thread::yield();
  EXPECT_GE(process, 0);
  EXPECT_GE(SystemClock::getProcessClock(), process + 4);
}

TEST(SystemClock, ASourceLivesUntilTheLastReadingHasReturned) {
  const std::jthread installer([] {
    for (int i = 0; i < 2000; ++i) const WithManualClock with;
  });
  for (int i = 0; i < 2000; ++i) EXPECT_GE(SystemClock::getCalendarTime(), 0);
}

TEST(SystemErrorText, IsOneLineForAnyCode) {
  for (const unsigned long code : {2ul, 5ul, 999'999ul}) {
    const std::wstring text = getSystemErrorText(code);
    EXPECT_FALSE(text.empty()) << code;
    EXPECT_EQ(text.find_first_of(L"\r\n"), std::wstring::npos) << code;
  }
  EXPECT_NE(getSystemErrorText(2), getSystemErrorText(5));
}

}  // namespace
}  // namespace Tessel
