#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/RecordingSink.h>
#include <tests/support/Told.h>
#include <tests/support/WireBytes.h>

#include <limits>
#include <stdexcept>
#include <tuple>

namespace Tessel {
namespace {

using namespace WireBytes;
using std::tuple;

template <class Record>
Record decodeByte(int value) {
  ByteStream body;
  return decode<Record>(body << byte(value));
}

// Progress

TEST(TourLevelInfo, LastsATimeOrANumberOfHandsOrForeverAndUsesAmountsAboveZero) {
  using enum TournamentLevelInformation::DurationKind;
  const struct {
    std::int64_t ms;
    int hands;
    TournamentLevelInformation::DurationKind kind;
    std::int64_t smallBlind, ante;
  } cases[] = {{-1, -1, UNLIMITED, 50, 0},
               {-1, 10, HANDS, 0, 10},
               {900'000, 10, MILLISECONDS, std::numeric_limits<std::int64_t>::min(), 1},
               {0, -1, MILLISECONDS, 1, std::numeric_limits<std::int64_t>::min()}};
  for (const auto& [ms, hands, kind, smallBlind, ante] : cases) {
    SCOPED_TRACE(testing::Message() << ms << " ms, " << hands << " hands");
    ByteStream body;
    body << number16(6) << ms << number16(hands) << Money(smallBlind, 2) << Money(100, 2) << Money(ante, 2);
    const auto level = decode<TourLevelInfo>(body);
    EXPECT_EQ(level.isDurationInfinite(), kind == UNLIMITED);
    EXPECT_EQ(level.isDurationInMs(), kind == MILLISECONDS);
    const TournamentLevelInformation info = level.getInfo();
    EXPECT_EQ(info.getLevelNumber(), 6);
    EXPECT_EQ(info.getDurationKind(), kind);
    EXPECT_EQ(info.getDurationInMs(), kind == MILLISECONDS ? ms : -1);
    EXPECT_EQ(info.getDurationInHands(), kind == HANDS ? hands : -1);
    EXPECT_EQ(info.hasBlinds(), smallBlind > 0);
    EXPECT_EQ(info.hasAnte(), ante > 0);
    if (smallBlind > 0) {
      EXPECT_EQ(info.getBlinds(), TournamentBlind(Money(smallBlind, 2), Money(100, 2)));
    }
    if (ante > 0) {
      EXPECT_EQ(info.getAnte(), TournamentAnte(Money(ante, 2)));
    }
  }
}

TEST(WinClientTournamentInfo, TakesItsMoneyOnceItIsReadWhole) {
  const auto& bytes = goldenCase("TournamentDataWinClientMsg").bytes;
  ByteStream cutShort{std::span(bytes).first(bytes.size() - 1)};
  WinClientTournamentInfo info;
  EXPECT_THROW(info.read(cutShort), KeystoneException);
  for (const Money& money : {info.getBuyIn(), info.getFee(), info.getPrizePool(), info.getStartingChips()})
    EXPECT_EQ(money, Money());
  ByteStream whole(bytes);
  EXPECT_TRUE(info.read(whole));
  for (const Money& money : {info.getBuyIn(), info.getFee(), info.getPrizePool(), info.getStartingChips()})
    EXPECT_NE(money, Money());
}

TEST(BreakMessages, LogThemselvesOnceTheyAreReadWhole) {
  for (const std::string name : {"TourBreakInfo", "TourBreakEnd", "TourBreakNotification"}) {
    SCOPED_TRACE(name);
    const GoldenCase& golden = goldenCase(name);
    const WithRecordingSink recording;
    const auto& lines = recording.sink->logLines;
    for (std::size_t size = 0; size <= golden.bytes.size(); ++size) {
      EXPECT_TRUE(lines.empty());
      ByteStream in(std::span(golden.bytes).first(size));
      static_cast<void>(ClientMessageFactory::decode(*golden.id, in));
    }
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(UTFEncoder::toUTF8(lines[0].text), golden.text);
    EXPECT_EQ(UTFEncoder::toUTF8(lines[0].file), "messages/TournamentMessages/" + name);
    EXPECT_EQ(lines[0].level, 5);
  }
}

TEST(BreakMessages, TellWhetherABreakFollowsAndHaveTheSizeOfTheProtocol) {
  const WithRecordingSink recording;
  for (const std::int64_t ms : {-2, -1, 0}) {
    ByteStream body;
    EXPECT_EQ(decode<TourBreakNotification>(body << ms << number64(1)).hasMoreBreaks(), ms != -1) << ms;
  }
  EXPECT_EQ(TourBreakInfo().size(), 32);
  EXPECT_EQ(TourSynchInfo().size(), 1);
}

TEST(CodeMessages, AnswerAnUnknownCodeWithTheConstantOfMinusOne) {
  for (const auto& [code, value] : {std::pair(-1, -1), {0, 0}, {4, 4}, {100, -1}, {-2, -1}, {-128, -1}}) {
    SCOPED_TRACE(code);
    const WithRecordingSink recording;
    EXPECT_EQ(static_cast<int>(decodeByte<TableNotification>(code).getEvent().getValue()), value);
    EXPECT_EQ(static_cast<int>(decodeByte<TourSynchInfo>(code).getCode().getValue()), value);
    EXPECT_EQ(recording.sink->reports.size(), 0u);
    EXPECT_EQ(static_cast<int>(decodeByte<TourNotification>(code).getEvent().getValue()), value);
    EXPECT_EQ(recording.sink->reports.size(), code == value ? 0u : 1u);
    EXPECT_EQ(static_cast<int>(decodeByte<TourRebuyFailedMsg>(code).getReason().getValue()), value);
    EXPECT_EQ(recording.sink->reports.size(), code == value ? 0u : 2u);
  }
}

TEST(VIPFlag, IsBitZeroOfTheAttributes) {
  for (const auto& [attributes, isVIP] : {std::pair(0, false), {1, true}, {2, false}, {-1, true}}) {
    SCOPED_TRACE(attributes);
    ByteStream ranked, player, table;
    ranked << 7 << L"Ann" << 3 << Money(1'500, 2) << attributes;
    player << 7 << L"Ann" << byte(attributes);
    table << 3 << L"Table 3" << number16(-1) << byte(attributes) << Money(1, 2) << Money(3, 4);
    EXPECT_EQ(decode<TourUserRanking>(ranked).getUserRanking(), RankedPlayer(7, 3, L"Ann", Money(1'500, 2), isVIP));
    EXPECT_EQ(decode<LobbyPlayerInfo>(player).isVIP(), isVIP);
    EXPECT_EQ(decode<LobbyTableInfo>(table).isVIPTable(), isVIP);
  }
}

const TsArray<RankedPlayer> RANKING = {RankedPlayer(3551, -1, L"\u00C7elik", Money(3550, 35), true),
                                       RankedPlayer(-3552, 2, L"", Money(-3560, -36), false)};

TEST(ProgressMessages, HandOutWhatTheyCarry) {
  const auto ranking = golden<TourPlayerRankingListInfo>();
  ASSERT_EQ(ranking.getNumberRankedPlayers(), 2);
  EXPECT_EQ(ranking.getRankedPlayer(1), RANKING[1]);
  EXPECT_EQ(ranking.getRankedPlayers(), RANKING);
  for (const int outside : {-1, 2}) EXPECT_THROW(ranking.getRankedPlayer(outside), std::invalid_argument);

  const auto knockout = golden<TourKnockoutInfo>();
  EXPECT_EQ(knockout.getTicketPrize(0), TournamentTicket(L"Ticket \u21161"));
  EXPECT_THROW(knockout.getMoneyPrize(2), std::invalid_argument);
  EXPECT_THROW(knockout.getTicketPrize(-1), std::invalid_argument);
}

TEST(ProgressMessages, AnswerTheirFields) {
  const WithRecordingSink recording;
  EXPECT_ANSWERS(TourBreakInfo, it.getRemainingMs(), it.getNumberOfEntrants(), it.getNumberOfRemainingPlayers(),
                 it.getAverageChipStack());
  EXPECT_ANSWERS(TourBreakNotification, it.getMsUntilNextBreak(), it.getNextBreakDurationMs());
  const auto message = golden<TourLevelInfoMsg>();
  const TourLevelInfo& level = message.getTourLevelInfo();
  EXPECT_EQ(told(level.getCurrentLevel(), level.getMsAtThisLevel(), level.getNumHandsAtThisLevel(),
                 level.getSmallBlind(), level.getBigBlind(), level.getAnte(), level.usesBlinds(), level.usesAnte()),
            *goldenCase("TourLevelInfoMsg").told);
  EXPECT_ANSWERS(TourNextLevelInfoMsg, it.getCurrentLevelInfo().getCurrentLevel(),
                 it.getNextLevelInfo().getCurrentLevel());
  EXPECT_ANSWERS(TourKnockoutInfo, it.getPlayerId(), it.getPlayerName(), it.getFinalPosition(),
                 it.getNumberOfMonetaryPrizes(), it.getNumberOfTicketPrizes(), it.getMoneyPrize(1));
  EXPECT_ANSWERS(TourPlayerLeave, it.getPlayerId(), it.getTableMovingToName());
  EXPECT_ANSWERS(TourPlayerArrive, it.getPlayerName(), it.getTableArrivingFromName());
  EXPECT_EQ(golden<TourFlightEndNotification>().getRemainingMs(), -3650);
  EXPECT_EQ(golden<MonetaryPrizeInfo>().getPrize(), Money(-610, 61));
  EXPECT_EQ(golden<TicketPrizeInfo>().getPrize(), TournamentTicket(L"Ticket \u21161"));
}

TEST(SummaryMessages, AnswerTheirFields) {
  const auto message = golden<SpecificTourSummary>();
  const SpecificLobbyPlayerInfo& user = message.getPlayerInfo();
  const LevelStructureInfo levels = message.getTourSummary().getLevelStructure();
  const FlightInfo flight = message.getTourSummary().getFlightInfo();
  const RebuyInfo rebuys = message.getTourSummary().getRebuyInfo();
  EXPECT_EQ(
      told(user.getLargestChipStack(), user.getAverageChipStack(), user.getStatusInTour(), user.getUserRanking(),
           user.getUserChipStack(), user.isUserSittingAtTable(), user.getTableIdForUser(), levels.getDurationMs(),
           levels.getDurationInHands(), levels.isAdaptive(), flight.getMainEventId(), flight.getNumPlayersInMainEvent(),
           flight.getFlightDurationMs(), message.getTourSummary().getPrizeStructure().getAddedCash(),
           rebuys.getNumberOfRebuys(), rebuys.getRebuyPeriodDurationMs(), rebuys.hasAddon(), rebuys.getRebuy(),
           rebuys.getRebuyCost(), rebuys.getAddon(), rebuys.getAddonCost()),
      *goldenCase("SpecificTourSummary").told);
  const auto updating = golden<SpecificTourSummaryUpdate>();
  const TourSummaryUpdate& update = updating.getTourSummaryUpdate();
  EXPECT_EQ(told(update.getTournamentId(), update.getStatus(), update.getEntrants(), update.getCurrentNumberOfPlayers(),
                 update.getPrizeStructureUpdate().getNumberOfPlayersInPayout(),
                 update.getPrizeStructureUpdate().getTotalPrizePool(), update.getStartTimeMs(),
                 update.getNumberOfPlayersInMainEvent(), update.getRegistrationStatus()),
            *goldenCase("SpecificTourSummaryUpdate").told);
}

// The lobby of a tournament

TEST(TournamentReplies, EchoTheRequestWithAStatus) {
  EXPECT_ANSWERS(TournamentLobbyReply, it.getJoinReq().getPlayerId(), it.getJoinReq().getTournamentId(),
                 it.getJoinReq().getTableId(), it.getJoinReq().getReplyStatus(), it.getJoinReq().getPassword());
  EXPECT_ANSWERS(TournamentJoinReplyMsg, it.getJoinReq().getTableId());
  EXPECT_ANSWERS(TournamentUnjoinReplyMsg, it.getJoinReq().getTableId());
}

TEST(WinClientTournamentInfo, HasItsBigBlindsInTheUnitOfTheStartingChipsAndItsTypesFromTheFactories) {
  const auto info = golden<TournamentDataWinClientMsg>().getTournamentInfo();
  EXPECT_EQ(info.getBuyIn(), Money(-310, 31));
  EXPECT_EQ(info.getFee(), Money(320, 32));
  EXPECT_EQ(info.getPrizePool(), Money(330, -33));
  EXPECT_EQ(info.getStartingChips(), Money(3400, 34));
  EXPECT_EQ(info.getGameType()->getValue(), GameTypes::AllowedGameType{2});
  EXPECT_EQ(info.getLimitType()->getValue(), LimitTypes::AllowedLimitType::POT_LIMIT);
  ASSERT_EQ(info.numberOfBigBlinds(), 2);
  EXPECT_EQ(info.bigBlind(1), Money(-200, 34));
  for (const int outside : {-1, 2}) EXPECT_THROW(info.bigBlind(outside), std::invalid_argument);

  EXPECT_EQ(told(info.getTournamentId(), info.getNrOfEnrolled(), info.getEntryLevel(), info.getNrOfWinners(),
                 static_cast<std::int8_t>(info.getTournamentType()), static_cast<std::int8_t>(info.getPlayerStatus()),
                 info.getName(), info.getDescription()),
            "-3121 3122 3123 -3124 -5 -6 Årets final Beschreibung");

  const WinClientTournamentInfo fresh;
  EXPECT_EQ(fresh.getGameType()->getValue(), GameTypes::AllowedGameType::UNKNOWN);
  EXPECT_EQ(fresh.getLimitType()->getValue(), LimitTypes::AllowedLimitType::UNKNOWN);
  for (const Money& amount : {fresh.getBuyIn(), fresh.getFee(), fresh.getPrizePool(), fresh.getStartingChips()})
    EXPECT_EQ(amount, Money());
}

TEST(LobbyLists, HandOutTheChangesInOrder) {
  EXPECT_ANSWERS(LobbyPlayerList, it.getRegisteredPlayers().size(), it.getRegisteredPlayers()[0].getPlayerName(),
                 it.getRegisteredPlayers()[1].getPlayerId(), it.getUnregisteredPlayers());
  EXPECT_ANSWERS(LobbyTableList, it.getUpdatedTables().size(), it.getUpdatedTables()[0].getNumberOfSeatedPlayers(),
                 it.getUpdatedTables()[0].getMinChipStackAtTable(), it.getUpdatedTables()[0].getMaxChipStackAtTable(),
                 it.getRemovedTables());
  EXPECT_ANSWERS(EnteredTourListMsg, it.getNumberTours(), it.getEnteredTour(1).getNodeId());
  const auto tours = golden<EnteredTourListMsg>();
  for (const int outside : {-1, 2}) EXPECT_THROW(tours.getEnteredTour(outside), std::invalid_argument);

  EXPECT_EQ(valuesOf(golden<LobbyTourInvitationMsg>().getInvitation()), *goldenCase("LobbyTourInvitationMsg").values);
  const auto player =
      read<TournamentLobbyPlayerInfo>("FFFFFF4D 0001 41 000000B4 FFFFFFFFFFFFFF4B 8A 000000B7 FFFFFF48");
  EXPECT_EQ(told(player.getPlayerId(), player.getNick(), player.getRanking(), player.getCredits(), player.getStatus(),
                 player.getTableId(), player.getPing()),
            "-179 A 180 -181 -118 183 -184");
  const auto seats = read<TournamentLobbyTableInfo>("000000B9 FFFFFF46 0001 42 0001 43 FFFFFF45");
  EXPECT_EQ(
      told(seats.getTableId(), seats.getTournamentId(), seats.getName(), seats.getStatus(), seats.getNumPlayers()),
      "185 -186 B C -187");

  const auto ranking = golden<LobbyTablePlayerList>();
  EXPECT_EQ(ranking.getRankedPlayers(), RANKING);
  EXPECT_ANSWERS(LobbyTablePlayerList, it.getTableId());
}

// Rebuys

TEST(RebuyMessages, TellChipsAndCostApart) {
  EXPECT_ANSWERS(TournamentRebuyQueryMsg, it.getRebuyQuery().getTournamentId(), it.getRebuyQuery().getBoughtChips(),
                 it.getRebuyQuery().getRebuyCost(), it.getRebuyQuery().isAddon());
  EXPECT_ANSWERS(TourPlayerRebuyNotificationMsg, it.getPlayerRebuyNotification().getPlayerName(),
                 it.getPlayerRebuyNotification().getBoughtChips(), it.getPlayerRebuyNotification().getCost(),
                 it.getPlayerRebuyNotification().wasAddon());
}

TEST(TourRebuyNotification, HasEndedBelowZero) {
  constexpr auto LOWEST = std::numeric_limits<std::int64_t>::min();
  for (const std::int64_t duration : {number64(0), number64(-1), LOWEST, number64(5'000'000'000)}) {
    ByteStream body;
    const auto message = decode<TournamentRebuyNotificationMsg>(body << duration << false << 3);
    EXPECT_EQ(message.getRebuyNotification().getRebuyPeriodMsRemaining(), duration);
    EXPECT_EQ(message.getRebuyNotification().hasRebuyPeriodEnded(), duration < 0) << duration;
    EXPECT_EQ(message.getRebuyNotification().getNumberOfRebuysRemaining(), 3);
  }
}

TEST(TournamentPlayerNoRebuyNotification, WasTheAddonForOneOnly) {
  for (const int value : {-1, 0, 1, 2}) {
    ByteStream body;
    EXPECT_EQ(decode<TournamentPlayerNoRebuyNotification>(body << 7 << byte(value)).wasAddon(), value == 1) << value;
  }
}

TEST(TournamentPendingRebuysMsg, HandsOutThePlayerIds) {
  EXPECT_ANSWERS(TournamentPendingRebuysMsg, it.getNumberOfPlayers(), it.getPlayerId(1));
  const auto pending = golden<TournamentPendingRebuysMsg>();
  for (const int outside : {-1, 2}) EXPECT_THROW(pending.getPlayerId(outside), OutOfBoundsException);
  ByteStream body(toBytes("7FFF"));
  for (int id = 1; id <= 32767; ++id) body << id;
  EXPECT_EQ(decode<TournamentPendingRebuysMsg>(body).getPlayerId(32766), 32767) << "the bytes just hold the list";
  body.truncate(2 + 4 * 32767 - 1);
  TournamentPendingRebuysMsg oneByteShort;
  EXPECT_THROW(oneByteShort.read(body), KeystoneException);
  EXPECT_EQ(body.unreadCount(), 4 * 32767u - 1) << "refused before an item is read";
  const auto none = read<TournamentPendingRebuysMsg>("FFFF");
  EXPECT_EQ(none.getNumberOfPlayers(), -1);
  EXPECT_THROW(none.getPlayerId(0), OutOfBoundsException);
}

// Private tournaments

TEST(PrivateTourLimitTypes, ListsNoLimitBeforePotLimit) {
  using enum LimitTypes::AllowedLimitType;
  using Types = TsArray<LimitTypes::AllowedLimitType>;
  const Types all = {LIMIT, NO_LIMIT, POT_LIMIT, RAISE_FOLD};
  const std::pair<int, Types> cases[] = {
      {0, {}}, {1, {LIMIT}}, {6, {NO_LIMIT, POT_LIMIT}}, {8, {RAISE_FOLD}}, {15, all}, {16, {}}, {-1, all}};
  for (const auto& [mask, types] : cases) {
    SCOPED_TRACE(mask);
    const auto limits = decodeByte<PrivateTourLimitTypes>(mask);
    EXPECT_EQ(limits.getLimitTypes(), types);
    EXPECT_EQ(limits.getType(), mask);
    EXPECT_EQ(limits.getIsLimit(), (mask & 1) != 0);
    EXPECT_EQ(limits.getIsPotLimit(), (mask & 2) != 0);
    EXPECT_EQ(limits.getIsNoLimit(), (mask & 4) != 0);
    EXPECT_EQ(limits.getIsRaiseFold(), (mask & 8) != 0);
  }
}

TEST(PrivateTourMasks, HaveABitForEachKnownType) {
  for (const auto& [value, limitMask, typeMask] :
       {tuple(-1, 0, 0), {0, 1, 1}, {1, 2, 2}, {2, 4, 0}, {3, 8, 0}, {4, 0, 0}, {7, 0, 0}}) {
    SCOPED_TRACE(value);
    EXPECT_EQ(PrivateTourLimitTypes::convertFromInternalTourType(LimitTypes::AllowedLimitType{value}), limitMask);
    EXPECT_EQ(PrivateTourType::convertFromInternalTourType(Tourney::TournamentType{value}), typeMask);
  }
  EXPECT_TRUE(decodeByte<PrivateTourType>(1).getIsSNG());
  EXPECT_FALSE(decodeByte<PrivateTourType>(1).getIsScheduled());
  EXPECT_TRUE(decodeByte<PrivateTourType>(-2).getIsScheduled());
}

TEST(TournamentCreationRules, HandsOutWhatIsAllowed) {
  ByteStream in(goldenCase("TournamentCreationRulesReply").bytes);
  const TournamentCreationRules allowed(in);
  EXPECT_EQ(valuesOf(golden<TournamentCreationRulesReply>().getRules()), valuesOf(allowed));
  EXPECT_TRUE(allowed.getTournamentTypes().getIsScheduled());

  const PrivateTourGameType& game = allowed.getGameTypes().getPrivateTourGameType(0);
  const auto& inUnit = allowed.getBuyInFees().getPrivateTourMonetaryBuyInFeeType(0);
  const auto& buyInFees = inUnit.getPrivateTourMonetaryBuyInFeeType();
  const auto& buyInFee = buyInFees.getPrivateTourBuyInFeeType(0);
  const BlindLevelSpeedInfo& speed = allowed.getBlindLevelSpeedInfo(0);
  const auto& intervals = allowed.getStartTimeIntervals();
  const auto& interval = intervals.getPrivateTourTimeIntervalType(0);
  EXPECT_EQ(
      told(game.getGameType(), game.getLimit().getType(),
           game.getSeats().getPrivateTourSeatsPerTableType(1).getNumSeats(), allowed.getNumberOfRebuyStructures(),
           allowed.getRebuyStructureType(0).getValue(), allowed.getRebuyStructureType(1).getValue(),
           inUnit.getMonetaryUnitId(), buyInFee.getId(), buyInFee.getBuyIn(), buyInFee.getFee(),
           allowed.getNumberOfBlindLevelSpeeds(), speed.getId(), speed.getStartingChipStack(),
           allowed.getNumberOfPrizeStructures(), allowed.getPrizeStructureType(0).getValue(), interval.getStartTime(),
           interval.getEndTime(), allowed.getNumberOfLanguages(), allowed.getLanguageCode(0)),
      goldenCase("TournamentCreationRulesReply").told);
  EXPECT_EQ(read<BlindLevelSpeedInfo>("0001 02 0001 0000000000000002").getBlindLevelSpeed().getValue(),
            AllowedBlindLevelSpeed::TURBO);

  EXPECT_THROW(allowed.getRebuyStructureType(2), OutOfBoundsException);
  EXPECT_THROW(allowed.getBlindLevelSpeedInfo(-1), OutOfBoundsException);
  EXPECT_THROW(allowed.getLanguageCode(2), OutOfBoundsException);
  EXPECT_THROW(allowed.getGameTypes().getPrivateTourGameType(2), OutOfBoundsException);

  const std::pair<std::wstring, std::wstring> lists[] = {
      {L"PrivateTourGameTypeList", allowed.getGameTypes().toDebugString()},
      {L"PrivateTourSeatsPerTableTypeList", game.getSeats().toDebugString()},
      {L"PrivateTourTimeIntervalTypeList", intervals.toDebugString()},
      {L"PrivateTourBuyInFeeTypeList", buyInFees.toDebugString()},
      {L"PrivateTourMonetaryBuyInFeeTypeList", allowed.getBuyInFees().toDebugString()},
  };
  for (const auto& [name, text] : lists)
    EXPECT_EQ(text, L"[" + name + L": Obs, not empty, just not displaying all since list might be too long]");
}

TEST(CreationReplies, HandOutTheServersCodesWithTheirSign) {
  EXPECT_EQ(told(golden<CancelTourReplyMsg>().getReply().getCancelReply(),
                 golden<StartTournamentReplyMsg>().getReply().getStartResult(),
                 decodeByte<TourCreationRulesFail>(-7).getFailCode()),
            "-31 -32 -7");
  EXPECT_FALSE(CreateTourReply().isCreationOk());
  using Error = AllowedCreatePrivateTournamentError;
  for (const auto& [result, error] :
       {std::pair(-1, Error::UNKNOWN), {0, Error::NONE}, {2, Error::NAME_IN_USE}, {100, Error::UNKNOWN}}) {
    const auto message = decodeByte<CreateTourReplyMsg>(result);
    EXPECT_EQ(message.getReply().isCreationOk(), result == 0) << result;
    EXPECT_EQ(message.getReply().getErrorType().getValue(), error) << result;
  }
}

}  // namespace
}  // namespace Tessel
