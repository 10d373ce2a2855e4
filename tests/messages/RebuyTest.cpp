#include <gtest/gtest.h>
#include <herald/messages/RebuyEvents.h>
#include <herald/platform/keystone/Exceptions.h>
#include <tests/support/RecordingSink.h>
#include <tests/support/WireBytes.h>

#include <limits>

namespace Tessel {
namespace {

using namespace WireBytes;

TEST(TournamentRebuyQueryMsg, HasTheChipsBeforeTheCostAndPrintsTheCostFirst) {
  ByteStream body;
  body << 42 << Money(1'000, 4) << Money(25, 1) << true;
  const auto message = decode<TournamentRebuyQueryMsg>(body);
  EXPECT_EQ(message.getRebuyQuery().getTournamentId(), 42);
  EXPECT_EQ(message.getRebuyQuery().getBoughtChips(), Money(1'000, 4));
  EXPECT_EQ(message.getRebuyQuery().getRebuyCost(), Money(25, 1));
  EXPECT_TRUE(message.getRebuyQuery().isAddon());
  EXPECT_EQ(message.toDebugString(),
            L"[TournamentRebuyQueryMsg: [TourRebuyQuery: TourId=42, Cost=[MoneyInfo: 25 ], Chips=[MoneyInfo: 1000 ], "
            L"IsAddon=true]]");
}

TEST(TourPlayerRebuyNotificationMsg, TellsChipsAndCostApart) {
  ByteStream body;
  body << 7 << L"Ann" << Money(1'000, 4) << Money(25, 1) << false;
  const auto message = decode<TourPlayerRebuyNotificationMsg>(body);
  const TourPlayerRebuyNotification& rebuy = message.getPlayerRebuyNotification();
  EXPECT_EQ(rebuy.getPlayerName(), L"Ann");
  EXPECT_EQ(rebuy.getBoughtChips(), Money(1'000, 4));
  EXPECT_EQ(rebuy.getCost(), Money(25, 1));
  EXPECT_FALSE(rebuy.wasAddon());
  EXPECT_EQ(message.toDebugString(),
            L"[TourPlayerRebuyNotificationMsg: PlayerRebuyNotification=[TourPlayerRebuyNotification: PlayerId=7, "
            L"PlayerName=Ann, ChipStack=[MoneyInfo: 1000 ], Cost=[MoneyInfo: 25 ], IsAddon=false]]");
}

TEST(TourRebuyNotification, HasEndedBelowZero) {
  constexpr auto LOWEST = std::numeric_limits<std::int64_t>::min();
  for (const auto& [duration, hasEnded] :
       {std::pair(number64(0), false), {number64(-1), true}, {LOWEST, true}, {number64(5'000'000'000), false}}) {
    ByteStream body;
    body << duration << false << 3;
    const auto message = decode<TournamentRebuyNotificationMsg>(body);
    EXPECT_EQ(message.getRebuyNotification().getRebuyPeriodMsRemaining(), duration);
    EXPECT_EQ(message.getRebuyNotification().hasRebuyPeriodEnded(), hasEnded) << duration;
    EXPECT_EQ(message.getRebuyNotification().getNumberOfRebuysRemaining(), 3);
  }
}

TEST(TournamentPlayerNoRebuyNotification, WasTheAddonForOneOnly) {
  for (const int value : {-1, 0, 1, 2}) {
    ByteStream body;
    body << 7 << byte(value);
    const auto message = decode<TournamentPlayerNoRebuyNotification>(body);
    EXPECT_EQ(message.wasAddon(), value == 1) << value;
    EXPECT_EQ(message.toDebugString(),
              L"[TournamentPlayerNoRebuyNotification: PlayerName=7, IsAddon=" + std::to_wstring(value) + L"]");
  }
}

TEST(TournamentPendingRebuysMsg, HandsOutThePlayerIds) {
  ByteStream body;
  body << number16(2) << 7 << 8;
  const auto message = decode<TournamentPendingRebuysMsg>(body);
  ASSERT_EQ(message.getNumberOfPlayers(), 2);
  EXPECT_EQ(message.getPlayerId(1), 8);
  for (const int outside : {-1, 2}) EXPECT_THROW(message.getPlayerId(outside), OutOfBoundsException);
  EXPECT_EQ(message.toDebugString(), L"[TournamentPendingRebuysMsg: [InfoList: 7 8 ]]");

  for (const int count : {0, -1}) {
    ByteStream none;
    none << number16(count);
    const auto pending = decode<TournamentPendingRebuysMsg>(none);
    EXPECT_EQ(pending.getNumberOfPlayers(), count);
    EXPECT_THROW(pending.getPlayerId(0), OutOfBoundsException);
  }
}

TEST(TourRebuyFailedMsg, AnswersAnUnknownReasonWithThatOfMinusOne) {
  const struct {
    int code;
    int value;
    std::size_t reports;
  } cases[] = {{-1, -1, 0}, {0, 0, 0}, {6, 6, 0}, {100, -1, 1}, {-128, -1, 1}};
  for (const auto& [code, value, reports] : cases) {
    SCOPED_TRACE(code);
    const WithRecordingSink reporter;
    ByteStream body;
    body << byte(code);
    const auto message = decode<TourRebuyFailedMsg>(body);
    EXPECT_TRUE(reporter.sink->reports.empty());
    EXPECT_EQ(static_cast<int>(message.getReason().getValue()), value);
    EXPECT_EQ(reporter.sink->reports.size(), reports);
    EXPECT_EQ(message.toDebugString(), L"[TourRebuyFailedMsg: iReason=" + std::to_wstring(code) + L"]");
  }
}

}  // namespace
}  // namespace Tessel
