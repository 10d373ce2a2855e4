#include <gtest/gtest.h>
#include <herald/messages/TourSummaryEvents.h>
#include <herald/platform/keystone/Exceptions.h>
#include <tests/support/AllocationCount.h>
#include <tests/support/RecordingSink.h>
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
  std::int64_t startTime = 5'000'000'001;
  const wchar_t* name = L"Sunday";

  ByteStream& appendTo(ByteStream& out) const {
    out << id << mask << byte(1) << number16(-15) << name << L"Sunday Million" << L"Big one" << byte(2) << byte(3);
    out << 104 << 105 << 106 << 107 << byte(9);
    out << L"Ticket" << Money(200, 3) << Money(15, 4) << true;
    out << 30 << Money(100'000, 5) << byte(4) << Money(500, 6) << Money(250'000, 7);
    out << Money(10'000, 8) << startTime << number64(6'000'000'002) << number64(7'000'000'003);
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
  std::int64_t startTime = 5'000'000'009;

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

TEST(TourSummary, PrintsEveryField) {
  EXPECT_EQ(
      (SummaryValues{.mask = FLIGHT | REBUYS}).decoded().toDebugString(),
      L"[TourSummary TourId=101, Attributes=34, Status=1, ServerPort=-15, NameShort=Sunday,\tNameLong=Sunday Million, "
      L"Description=Big one, GameType=3, LimitType=2, NumEntrants=104, MaxNumEntrants=106, CurrentNumPlayers=107, "
      L"MinNumEntrants=105, PlayersPerTable=9, TicketInfo=[TicketInfo: Description=Ticket, BuyIn=[MoneyInfo: 200 ], "
      L"Fee=[MoneyInfo: 15 ], IsRestricted=1], PrizeStructure=[PrizeStructureInfo: NumPlayersInPayout=30, "
      L"PrizePool=[MoneyInfo: 100000 ], PrizeStructureType=4, AddedCash=[MoneyInfo: 500 ], "
      L"GuaranteedCash=[MoneyInfo: 250000 ]], StartingChips=[MoneyInfo: 10000 ], StartTime=5000000001, "
      L"WebRegistrationTime=6000000002, ClientRegistrationTime=7000000003, LevelStructure=[LevelStructureInfo: "
      L"DurationMs=600000, DurationHands=12, IsAdaptive=1], OwnerId=108, RebuyInfo=[RebuyInfo: NumberOfRebuys=2, "
      L"DurationMs=3600000, HasAddon=1, iRebuy=[MoneyInfo: 1000 ], iRebuyCost=[MoneyInfo: 20 ], "
      L"iAddon=[MoneyInfo: 2000 ], iAddonCost=[MoneyInfo: 40 ]], FlightInfo=[FlightInfo: MainEventId=109, "
      L"NumPlayers=110, DurationMs=8000000004], RegStatus=-5]");
}

TEST(TourSummary, HandsOutEveryField) {
  const TourSummary summary = SummaryValues().decoded();
  EXPECT_EQ(summary.getTournamentId(), 101);
  EXPECT_EQ(summary.getTournamentStatus().getValue(), AllowedTournamentStatus{1});
  EXPECT_EQ(summary.getServerPort(), -15);
  EXPECT_EQ(summary.getNameShort(), L"Sunday");
  EXPECT_EQ(summary.getNameLong(), L"Sunday Million");
  EXPECT_EQ(summary.getDescription(), L"Big one");
  EXPECT_EQ(summary.getLimitType()->getValue(), LimitTypes::AllowedLimitType{2});
  EXPECT_EQ(summary.getGameType()->getValue(), GameTypes::AllowedGameType{3});
  EXPECT_EQ(summary.getNumberOfEntrants(), 104);
  EXPECT_EQ(summary.getMinimumNumberOfEntrants(), 105);
  EXPECT_EQ(summary.getMaximumNumberOfEntrants(), 106);
  EXPECT_EQ(summary.getCurrentNumberOfPlayers(), 107);
  EXPECT_EQ(summary.getPlayersPerTable(), 9);
  EXPECT_EQ(summary.getTicketInformation(), TournamentTicket(Money(200, 3), Money(15, 4), true, L"Ticket"));
  EXPECT_EQ(summary.getGlobalMonetaryUnitId(), 3);
  EXPECT_EQ(summary.getPrizeStructure().getGuaranteedCash(), Money(250'000, 7));
  EXPECT_EQ(summary.getStartingChips(), Money(10'000, 8));
  EXPECT_EQ(summary.getStartTime(), TsTime(5'000'000));
  EXPECT_EQ(summary.getWebRegistrationTime(), TsTime(6'000'000));
  EXPECT_EQ(summary.getClientSignupTime(), TsTime(7'000'000));
  EXPECT_EQ(summary.getOwnerID(), 108);
  EXPECT_EQ(summary.getRegistrationStatus(), PlayerRegistrationStatus{-5});
}

TEST(TourSummary, ReadsRebuysAndFlightOnlyWhenTheMaskHasThem) {
  for (const int mask : {0, FLIGHT, REBUYS, FLIGHT | REBUYS}) {
    SCOPED_TRACE(mask);
    ByteStream body;
    SummaryValues{.mask = mask}.appendTo(body);
    const TourSummary summary = decode<TourSummary>(body);
    EXPECT_EQ(summary.getRebuyInfo().getAddonCost(), (mask & REBUYS) != 0 ? Money(40, 12) : Money(0, 0));
    EXPECT_EQ(summary.getFlightInfo().getMainEventId(), (mask & FLIGHT) != 0 ? 109 : -1);
    EXPECT_EQ(summary.getRegistrationStatus(), PlayerRegistrationStatus{-5});
    EXPECT_EQ(summary.size(), body.GetSize());
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

TEST(TourSummaryUpdate, PrintsEveryField) {
  EXPECT_EQ(UpdateValues{.mask = FLIGHT}.decoded().toDebugString(),
            L"[TourSummaryUpdate TourId=101, Attributes=2, Status=4, NumEntrants=201, CurrentNumPlayers=202, "
            L"PrizeStructureUpdate=[PrizeStructureInfoUpdate: NumPlayersInPayout=203, PrizePool=[MoneyInfo: 300000 ]], "
            L"StartTime==5000000009, NumPlayersInMainEvent=204, RegStatus=2]");
  EXPECT_EQ(UpdateValues().decoded().getNumberOfPlayersInMainEvent(), -1);
}

TEST(TourSummaryUpdate, BringsASummaryUpToDate) {
  // The first summary has flight information of its own, the second only what it was constructed with.
  for (const int maskBefore : {FLIGHT, 0}) {
    SCOPED_TRACE(maskBefore);
    TourSummary summary = SummaryValues{.mask = maskBefore}.decoded();
    UpdateValues{.mask = FLIGHT}.decoded().update(summary);
    EXPECT_EQ(summary.getTournamentStatus().getValue(), AllowedTournamentStatus{4});
    EXPECT_TRUE(summary.isFlight());
    EXPECT_EQ(summary.getNumberOfEntrants(), 201);
    EXPECT_EQ(summary.getCurrentNumberOfPlayers(), 202);
    EXPECT_EQ(summary.getPrizeStructure().getNumberOfPlayersInPayout(), 203);
    EXPECT_EQ(summary.getPrizeStructure().getTotalPrizePool(), Money(300'000, 5));
    EXPECT_EQ(summary.getStartTime(), TsTime(5'000'000));
    EXPECT_EQ(summary.getFlightInfo().getNumPlayersInMainEvent(), 204);
    EXPECT_EQ(summary.getFlightInfo().getMainEventId(), maskBefore == FLIGHT ? 109 : -1);
    EXPECT_EQ(summary.getRegistrationStatus(), PlayerRegistrationStatus{2});
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
  ASSERT_EQ(message.getNumberNewTournaments(), 2);
  ASSERT_EQ(message.getNumberUpdatedTournaments(), 3);
  ASSERT_EQ(message.getNumberDeletedTournaments(), 2);
  EXPECT_EQ(message.getNewTournament(1).getTournamentId(), 1);
  EXPECT_EQ(message.getUpdatedTournament(2).getTournamentId(), 2);
  EXPECT_EQ(message.getDeletedTournamentId(1), 302);
  for (const int outside : {-1, 3}) {
    EXPECT_THROW(message.getNewTournament(outside), std::invalid_argument);
    EXPECT_THROW(message.getUpdatedTournament(outside), std::invalid_argument);
    EXPECT_THROW(message.getDeletedTournamentId(outside), std::invalid_argument);
  }
}

TEST(TourSummaryChangeList, PrintsNoFirstSummaryOfAnEmptyList) {
  EXPECT_EQ(TourSummaryChangeList().toDebugString(),
            L"[TourSummaryChangeList: NodeId=-1 [TourSummaryList: NumInfos=0, FirstInfo=] [TourSummaryUpdateList: "
            L"NumInfos=0] [TourSummaryDeleteList: NumInfos=0]]");
}

TEST(TourSummaryChangeList, RefusesANegativeCount) {
  for (int list = 0; list < 3; ++list) {
    SCOPED_TRACE(list);
    ByteStream body;
    body << number16(1);
    for (int i = 0; i < 3; ++i) body << number16(i == list ? -1 : 0);
    EXPECT_THROW(TourSummaryChangeList().read(body), std::invalid_argument);
  }
}

// Texts of up to 15 bytes take no memory of their own.
TEST(TourSummaryChangeList, AllocatesNothingButItsArraysAndLongTexts) {
#ifdef _WIN32
  GTEST_SKIP() << "the library's allocations cannot be counted here";
#endif
  const struct {
    const wchar_t* name;
    int texts;
  } cases[] = {{L"15 bytes of it.", 0}, {L"This is 16 bytes", 200}};
  for (const auto& [name, texts] : cases) {
    SCOPED_TRACE(name);
    ByteStream body = changeList(200, 500, name);
    const int before = allocationCount();
    const auto message = std::make_unique<TourSummaryChangeList>();
    ASSERT_TRUE(message->read(body));
    EXPECT_EQ(allocationCount() - before, 1 + 3 + texts);
    EXPECT_EQ(message->getUpdatedTournament(499).getTournamentId(), 499);
  }
}

}  // namespace
}  // namespace Tessel
