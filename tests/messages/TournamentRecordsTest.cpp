#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/AllocationCount.h>
#include <tests/support/RecordingSink.h>
#include <tests/support/Told.h>
#include <tests/support/WireBytes.h>

#include <memory>
#include <stdexcept>

namespace Tessel {
namespace {

using namespace WireBytes;

constexpr int FLIGHT = 1 << 1;
constexpr int REBUYS = 1 << 5;

// Every value that the protocol leaves to the server is another one.
struct SummaryValues {
  int id = 101;
  int mask = 0;
  std::int64_t startTime = 5'000'000'000'001;
  const wchar_t* name = L"Sunday";

  ByteStream& appendTo(ByteStream& out) const {
    out << id << mask << byte(1) << number16(-15) << name << L"Sunday Million" << L"Big one" << byte(2) << byte(3);
    out << 104 << 105 << 106 << 107 << byte(9);
    out << L"Ticket" << Money(200, 3) << Money(15, 4) << true;
    out << 30 << Money(100'000, 5) << byte(4) << Money(500, 6) << Money(250'000, 7);
    out << Money(10'000, 8) << startTime << number64(6'000'000'000'002) << number64(7'000'000'000'003);
    out << number64(600'000) << number16(12) << true << 108;
    if ((mask & REBUYS) != 0)
      out << 2 << number64(3'600'000) << true << Money(1'000, 9) << Money(20, 10) << Money(2'000, 11) << Money(40, 12);
    if ((mask & FLIGHT) != 0) out << 109 << 110 << number64(8'000'000'004);
    return out << byte(-5);
  }
  TourSummary decoded() const {
    ByteStream out;
    return decode<TourSummary>(appendTo(out));
  }
};

struct UpdateValues {
  int id = 101;
  int mask = 0;
  int unit = 5;
  std::int64_t startTime = 5'000'000'000'009;

  ByteStream& appendTo(ByteStream& out) const {
    out << id << mask << byte(4) << 201 << 202 << 203 << Money(300'000, unit) << startTime;
    if ((mask & FLIGHT) != 0) out << 204;
    return out << byte(2);
  }
  TourSummaryUpdate decoded() const {
    ByteStream out;
    return decode<TourSummaryUpdate>(appendTo(out));
  }
};

TEST(TourSummary, HandsOutEveryField) {
  const TourSummary summary = SummaryValues().decoded();
  const PrizeStructureInfo prizes = summary.getPrizeStructure();
  EXPECT_EQ(
      told(summary.getTournamentId(), summary.getTournamentStatus().getValue(), summary.getServerPort(),
           summary.getNameShort(), summary.getNameLong(), summary.getDescription(), summary.getLimitType()->getValue(),
           summary.getGameType()->getValue(), summary.getNumberOfEntrants(), summary.getMinimumNumberOfEntrants(),
           summary.getMaximumNumberOfEntrants(), summary.getCurrentNumberOfPlayers(), summary.getPlayersPerTable(),
           summary.getOwnerID(), summary.getRegistrationStatus(), summary.getGlobalMonetaryUnitId(),
           prizes.getPrizeStructureType().getValue(), prizes.getGuaranteedCash(), summary.getStartingChips(),
           summary.getStartTime().getSeconds(), summary.getWebRegistrationTime().getSeconds(),
           summary.getClientSignupTime().getSeconds()),
      "101 1 -15 Sunday Sunday Million Big one 2 3 104 105 106 107 9 108 -5 3 4 250000/7 10000/8 5000000000 "
      "6000000000 7000000000");
  EXPECT_EQ(summary.getTicketInformation(), TournamentTicket(Money(200, 3), Money(15, 4), true, L"Ticket"));
}

TEST(TourSummary, ReadsRebuysAndFlightOnlyWhenTheMaskHasThem) {
  for (const int mask : {0, FLIGHT, REBUYS, FLIGHT | REBUYS}) {
    SCOPED_TRACE(mask);
    const TourSummary summary = SummaryValues{.mask = mask}.decoded();
    EXPECT_EQ(summary.getRebuyInfo().getAddonCost(), (mask & REBUYS) != 0 ? Money(40, 12) : Money(0, 0));
    EXPECT_EQ(summary.getFlightInfo().getMainEventId(), (mask & FLIGHT) != 0 ? 109 : -1);
    ByteStream body;
    EXPECT_EQ(summary.size(), SummaryValues{.mask = mask}.appendTo(body).GetSize());
  }
}

TEST(TourSummary, TestsTheBitsOfItsMask) {
  const struct {
    int bit;
    bool (TourSummary::*test)() const;
    bool whenSet;
  } cases[] = {{0, &TourSummary::isSitAndGo, true},
               {1, &TourSummary::isFlight, true},
               {2, &TourSummary::isMainEvent, true},
               {3, &TourSummary::requiresPassword, true},
               {4, &TourSummary::isLeague, true},
               {5, &TourSummary::hasRebuys, true},
               {6, &TourSummary::usesClientSignup, false},
               {7, &TourSummary::usesWebSignup, false},
               {8, &TourSummary::isVIP, true}};
  for (const auto& [bit, test, whenSet] : cases) {
    SCOPED_TRACE(bit);
    EXPECT_EQ((SummaryValues{.mask = 1 << bit}.decoded().*test)(), whenSet);
    EXPECT_EQ((SummaryValues{.mask = ~(1 << bit)}.decoded().*test)(), !whenSet);
  }
}

TEST(TourSummary, HasAStartTimeFromZeroOn) {
  const struct {
    std::int64_t milliseconds;
    bool hasStartTime;
    std::int64_t seconds;
  } cases[] = {{-60'000, false, 0}, {-1, false, 0}, {0, true, 0}, {1'999, true, 1}};
  for (const auto& [milliseconds, hasStartTime, seconds] : cases) {
    SCOPED_TRACE(milliseconds);
    const TourSummary summary = SummaryValues{.startTime = milliseconds}.decoded();
    EXPECT_EQ(summary.hasStartTime(), hasStartTime);
    EXPECT_EQ(summary.getStartTime(), TsTime(seconds));
    EXPECT_EQ(UpdateValues{.startTime = milliseconds}.decoded().hasStartTime(), hasStartTime);
  }
}

TEST(TourSummary, IsALobbyNode) {
  const TourSummary summary = SummaryValues().decoded();
  const LobbyNodeInterface& node = summary;
  EXPECT_EQ(node.getLobbyNodeId(), 101);
  const std::unique_ptr<LobbyNodeInterface> copy(node.cloneNode());
  ASSERT_NE(dynamic_cast<TourSummary*>(copy.get()), nullptr);
  EXPECT_EQ(dynamic_cast<TourSummary&>(*copy).toDebugString(), summary.toDebugString());
  EXPECT_EQ(static_cast<const void*>(static_cast<const ReadableObjectInfo*>(&summary)), &summary);
}

TEST(TourSummary, CanBeCancelled) {
  TourSummary summary;
  EXPECT_EQ(summary.getTournamentStatus().getValue(), AllowedTournamentStatus{-1});
  summary.setCancelled();
  EXPECT_EQ(summary.getTournamentStatus().getValue(), AllowedTournamentStatus{7});
  EXPECT_FALSE(summary.hasOwner());
}

TEST(TourSummaryUpdate, BringsASummaryUpToDate) {
  // The first summary has flight information of its own, the second only what it was constructed with.
  for (const int maskBefore : {FLIGHT, 0}) {
    SCOPED_TRACE(maskBefore);
    TourSummary summary = SummaryValues{.mask = maskBefore}.decoded();
    UpdateValues{.mask = FLIGHT}.decoded().update(summary);
    EXPECT_EQ(told(summary.getTournamentStatus().getValue(), summary.isFlight(), summary.getNumberOfEntrants(),
                   summary.getCurrentNumberOfPlayers(), summary.getPrizeStructure().getNumberOfPlayersInPayout(),
                   summary.getPrizeStructure().getTotalPrizePool(), summary.getRegistrationStatus(),
                   summary.getFlightInfo().getNumPlayersInMainEvent(), summary.getFlightInfo().getMainEventId()),
              told(4, 1, 201, 202, 203, Money(300'000, 5), 2, 204, maskBefore == FLIGHT ? 109 : -1));
    EXPECT_EQ(summary.getStartTime(), TsTime(5'000'000'000));
  }
}

TEST(TourSummaryUpdate, LeavesAnotherTournamentAndWhatIsNoFlightAlone) {
  TourSummary summary = SummaryValues{.mask = FLIGHT}.decoded();
  const std::wstring before = summary.toDebugString();
  UpdateValues{.id = 102}.decoded().update(summary);
  EXPECT_EQ(summary.toDebugString(), before);
  UpdateValues().decoded().update(summary);
  EXPECT_FALSE(summary.isFlight());
  EXPECT_EQ(summary.getFlightInfo().getNumPlayersInMainEvent(), 110);
}

TEST(TourSummaryUpdate, ReportsAPrizePoolInAnotherUnitAndKeepsTheOld) {
  const WithRecordingSink reporter;
  TourSummary summary = SummaryValues().decoded();
  UpdateValues{.unit = 6}.decoded().update(summary);
  EXPECT_EQ(summary.getPrizeStructure().getTotalPrizePool(), Money(100'000, 5));
  EXPECT_EQ(summary.getPrizeStructure().getNumberOfPlayersInPayout(), 203);
  EXPECT_EQ(summary.getRegistrationStatus(), PlayerRegistrationStatus{2});
  ASSERT_EQ(reporter.sink->reports.size(), 1u);
  EXPECT_EQ(reporter.sink->reports[0].getFile(), L"messages/info_objects/PrizeStructureInfoUpdate");
  EXPECT_EQ(reporter.sink->reports[0].getText(), L"Trying to update prize pool with different monetary unit id.");
}

TEST(TournamentRecords, KnowMinusOneFromZero) {
  for (const int value : {-1, 0}) {
    SCOPED_TRACE(value);
    ByteStream level, rebuy, player;
    level << number64(600'000) << number16(value) << false;
    rebuy << value << number64(0) << false << Money() << Money() << Money() << Money();
    player << Money() << Money() << byte(2) << 17 << Money() << value;
    EXPECT_EQ(decode<LevelStructureInfo>(level).isDurationInHands(), value == 0);
    EXPECT_EQ(decode<RebuyInfo>(rebuy).hasUnlimitedNumberOfRebuys(), value == -1);
    EXPECT_EQ(decode<SpecificLobbyPlayerInfo>(player).isUserSittingAtTable(), value == 0);
  }
  EXPECT_FALSE(SpecificLobbyPlayerInfo().isUserSittingAtTable());
}

ByteStream changeList(int numNew, int numUpdated, const wchar_t* name) {
  ByteStream out;
  out << number16(-3) << number16(numNew);
  for (int i = 0; i < numNew; ++i)
    SummaryValues{.id = i, .mask = i % 2 == 0 ? REBUYS : FLIGHT, .name = name}.appendTo(out);
  out << number16(numUpdated);
  for (int i = 0; i < numUpdated; ++i) UpdateValues{.id = i, .mask = i}.appendTo(out);
  return out << number16(2) << 301 << 302, out;
}

TEST(TourSummaryChangeList, HandsOutItsThreeLists) {
  TourSummaryChangeList message = decode<TourSummaryChangeList>(changeList(2, 3, L"Sunday"));
  message.setNodeId(99);
  EXPECT_EQ(message.getNodeId(), -3);
  EXPECT_EQ(message.ClientMessage::getNodeId(), 99);
  EXPECT_EQ(told(message.getNumberNewTournaments(), message.getNumberUpdatedTournaments(),
                 message.getNumberDeletedTournaments(), message.getNewTournament(1).getTournamentId(),
                 message.getUpdatedTournament(2).getTournamentId(), message.getDeletedTournamentId(1)),
            "2 3 2 1 2 302");
  for (const int outside : {-1, 3}) {
    EXPECT_THROW(message.getNewTournament(outside), std::invalid_argument);
    EXPECT_THROW(message.getUpdatedTournament(outside), std::invalid_argument);
    EXPECT_THROW(message.getDeletedTournamentId(outside), std::invalid_argument);
  }
}

// The arrays, and texts too long for their fields, lie in a few chunks of memory of the message.
TEST(TourSummaryChangeList, TakesItsMemoryInAFewPieces) {
#ifdef _WIN32
  GTEST_SKIP() << "the library's allocations cannot be counted here";
#endif
  for (const wchar_t* name : {L"23 bytes, not one more.", L"These are 25 bytes, or so"}) {
    ByteStream body = changeList(200, 500, name);
    const int before = allocationCount();
    const auto message = std::make_unique<TourSummaryChangeList>();
    ASSERT_TRUE(message->read(body));
    EXPECT_LE(allocationCount() - before, 10) << "not one for each of 800 texts";
    EXPECT_EQ(message->getUpdatedTournament(499).getTournamentId(), 499);
  }
}

}  // namespace
}  // namespace Tessel
