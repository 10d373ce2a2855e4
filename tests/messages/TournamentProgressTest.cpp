#include <gtest/gtest.h>
#include <herald/messages/TournamentMessages/TourProgressEvents.h>
#include <herald/platform/keystone/Exceptions.h>
#include <tests/support/RecordingSink.h>
#include <tests/support/WireBytes.h>

#include <limits>
#include <memory>
#include <stdexcept>

namespace Tessel {
namespace {

using namespace WireBytes;

struct LevelValues {
  int number = 6;
  std::int64_t ms = 900'000;
  int hands = -1;
  std::int64_t smallBlind = 50;
  std::int64_t ante = 10;

  ByteStream& appendTo(ByteStream& out) const {
    return out << number16(number) << ms << number16(hands) << Money(smallBlind, 2) << Money(100, 2) << Money(ante, 2);
  }
  TourLevelInfo decoded() const {
    ByteStream out;
    return decode<TourLevelInfo>(appendTo(out));
  }
};

TEST(TourLevelInfo, LastsATimeOrANumberOfHandsOrForever) {
  using enum TournamentLevelInformation::DurationKind;
  const struct {
    std::int64_t ms;
    int hands;
    TournamentLevelInformation::DurationKind kind;
  } cases[] = {{-1, -1, UNLIMITED}, {-1, 10, HANDS}, {900'000, 10, MILLISECONDS}, {0, -1, MILLISECONDS}};
  for (const auto& [ms, hands, kind] : cases) {
    SCOPED_TRACE(testing::Message() << ms << " ms, " << hands << " hands");
    const TourLevelInfo level = LevelValues{.ms = ms, .hands = hands}.decoded();
    const TournamentLevelInformation info = level.getInfo();
    EXPECT_EQ(info.getDurationKind(), kind);
    EXPECT_EQ(info.getDurationInMs(), kind == MILLISECONDS ? ms : -1);
    EXPECT_EQ(info.getDurationInHands(), kind == HANDS ? hands : -1);
    EXPECT_EQ(level.isDurationInfinite(), kind == UNLIMITED);
    EXPECT_EQ(level.isDurationInMs(), kind == MILLISECONDS);
  }
}

TEST(TourLevelInfo, UsesBlindsAndAnteAboveZero) {
  const TournamentLevelInformation info = LevelValues().decoded().getInfo();
  EXPECT_EQ(info.getLevelNumber(), 6);
  EXPECT_EQ(info.getBlinds(), TournamentBlind(Money(50, 2), Money(100, 2)));
  EXPECT_EQ(info.getAnte(), TournamentAnte(Money(10, 2)));
  for (const std::int64_t amount : {std::int64_t{0}, std::numeric_limits<std::int64_t>::min()}) {
    EXPECT_FALSE(LevelValues{.smallBlind = amount}.decoded().getInfo().hasBlinds());
    EXPECT_FALSE(LevelValues{.ante = amount}.decoded().getInfo().hasAnte());
  }
}

TEST(TourNextLevelInfoMsg, ReadsTheCurrentLevelFirst) {
  ByteStream body;
  LevelValues{.number = 6}.appendTo(body);
  LevelValues{.number = 7, .ms = -1, .hands = 12}.appendTo(body);
  const TourNextLevelInfoMsg message = decode<TourNextLevelInfoMsg>(body);
  EXPECT_EQ(message.getCurrentLevelInfo().getCurrentLevel(), 6);
  EXPECT_EQ(message.getNextLevelInfo().getCurrentLevel(), 7);
}

template <class Message>
std::unique_ptr<ClientMessage> create() {
  return std::make_unique<Message>();
}

TEST(BreakMessages, LogThemselvesOnceTheyAreReadWhole) {
  ByteStream info, notification;
  info << number64(5'000'000'001) << 300 << 42 << number64(70'000);
  notification << number64(5'000'000'002) << number64(300'000);
  const struct {
    std::unique_ptr<ClientMessage> (*create)();
    ByteStream body;
    std::wstring source;
    std::wstring text;
  } cases[] = {
      {create<TourBreakInfo>, info, L"TourBreakInfo",
       L"[TourBreakInfo: iRemainingTime=5000000001, iNumberOfEntrants=300, iNumberOfRemainingPlayers=42, "
       L"iAverageChipStack=[AmountInfo: amount=70000]]"},
      {create<TourBreakEnd>, ByteStream(), L"TourBreakEnd", L"[TourBreakEnd]"},
      {create<TourBreakNotification>, notification, L"TourBreakNotification",
       L"[TourBreakNotification iMsUntilBreak=5000000002, BreakDuration=300000]"},
  };
  for (const auto& [create, body, source, text] : cases) {
    SCOPED_TRACE(testing::Message() << source);
    const WithRecordingSink log;
    for (std::size_t length = 0; length < body.bytes().size(); ++length) {
      ByteStream cut(body.bytes().first(length));
      EXPECT_THROW(create()->read(cut), KeystoneException);
    }
    EXPECT_TRUE(log.sink->logLines.empty());
    ByteStream whole = body;
    EXPECT_TRUE(create()->read(whole));
    ASSERT_EQ(log.sink->logLines.size(), 1u);
    EXPECT_EQ(log.sink->logLines[0].text, text);
    EXPECT_EQ(log.sink->logLines[0].file, L"messages/TournamentMessages/" + source);
    EXPECT_EQ(log.sink->logLines[0].level, 5);
  }
}

TEST(TourBreakNotification, HasMoreBreaksUnlessMinusOne) {
  const WithRecordingSink log;
  for (const std::int64_t ms : {-2, -1, 0}) {
    ByteStream body;
    body << ms << number64(1);
    EXPECT_EQ(decode<TourBreakNotification>(body).hasMoreBreaks(), ms != -1) << ms;
  }
}

TEST(ProgressMessages, HaveTheSizesOfTheProtocol) {
  EXPECT_EQ(TourBreakInfo().size(), 32);
  EXPECT_EQ(TourSynchInfo().size(), 1);
}

TEST(CodeMessages, AnswerAnUnknownCodeWithTheEventOfMinusOne) {
  const struct {
    int code;
    int value;
    std::size_t reports;
  } cases[] = {{-1, -1, 0}, {0, 0, 0}, {4, 4, 0}, {100, -1, 1}, {-2, -1, 1}, {-128, -1, 1}};
  for (const auto& [code, value, reports] : cases) {
    SCOPED_TRACE(code);
    const WithRecordingSink reporter;
    ByteStream body;
    body << byte(code);
    const auto tour = decode<TourNotification>(body);
    EXPECT_EQ(static_cast<int>(tour.getEvent().getValue()), value);
    EXPECT_EQ(reporter.sink->reports.size(), reports);
    EXPECT_EQ(static_cast<int>(decode<TableNotification>(body).getEvent().getValue()), value);
    EXPECT_EQ(static_cast<int>(decode<TourSynchInfo>(body).getCode().getValue()), value);
    EXPECT_EQ(reporter.sink->reports.size(), reports);
    EXPECT_EQ(tour.toDebugString(), L"[TourNotification: iCode=" + std::to_wstring(code) + L"]");
  }
}

ByteStream& appendPlayer(ByteStream& out, int id, int attributes) {
  return out << id << L"Ann" << 3 << Money(1'500, 2) << attributes;
}

TEST(TourUserRanking, TakesTheVIPFlagFromBitZero) {
  for (const auto& [attributes, isVIP] : {std::pair(0, false), {1, true}, {2, false}, {-1, true}}) {
    ByteStream body;
    appendPlayer(body, 7, attributes);
    EXPECT_EQ(decode<TourUserRanking>(body).getUserRanking(), RankedPlayer(7, 3, L"Ann", Money(1'500, 2), isVIP));
  }
}

TEST(TourPlayerRankingListInfo, HandsOutThePlayersInOrder) {
  ByteStream body;
  body << number16(2);
  appendPlayer(appendPlayer(body, 8, 0), 7, 0);
  const auto message = decode<TourPlayerRankingListInfo>(body);
  ASSERT_EQ(message.getNumberRankedPlayers(), 2);
  EXPECT_EQ(message.getRankedPlayer(0).getPlayerId(), 8);
  EXPECT_EQ(message.getRankedPlayers(),
            (TsArray<RankedPlayer>{message.getRankedPlayer(0), message.getRankedPlayer(1)}));
  for (const int outside : {-1, 2}) EXPECT_THROW(message.getRankedPlayer(outside), std::invalid_argument);

  ByteStream negative;
  negative << number16(-1);
  EXPECT_THROW(TourPlayerRankingListInfo().read(negative), std::invalid_argument);
}

TEST(TourKnockoutInfo, HandsOutThePrizes) {
  ByteStream body;
  body << 7 << L"Ann" << 2 << number16(2) << Money(900, 1) << Money(50, 2) << number16(1) << L"Main event";
  const auto message = decode<TourKnockoutInfo>(body);
  ASSERT_EQ(message.getNumberOfMonetaryPrizes(), 2);
  ASSERT_EQ(message.getNumberOfTicketPrizes(), 1);
  EXPECT_EQ(message.getMoneyPrize(1), Money(50, 2));
  EXPECT_EQ(message.getTicketPrize(0), TournamentTicket(L"Main event"));
  EXPECT_THROW(message.getMoneyPrize(2), std::invalid_argument);
  EXPECT_THROW(message.getTicketPrize(-1), std::invalid_argument);
}

}  // namespace
}  // namespace Tessel
