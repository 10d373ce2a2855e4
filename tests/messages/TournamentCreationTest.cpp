#include <gtest/gtest.h>
#include <herald/messages/TournamentCreationEvents.h>
#include <herald/platform/keystone/Exceptions.h>
#include <tests/support/WireBytes.h>

namespace Tessel {
namespace {

using namespace WireBytes;
using Limit = LimitTypes::AllowedLimitType;

template <class Record>
Record decodeByte(int value) {
  ByteStream body;
  body << byte(value);
  return decode<Record>(body);
}

TEST(PrivateTourLimitTypes, ListsNoLimitBeforePotLimit) {
  const struct {
    int mask;
    TsArray<Limit> types;
  } cases[] = {
      {0, {}},
      {1, {Limit::LIMIT}},
      {6, {Limit::NO_LIMIT, Limit::POT_LIMIT}},
      {8, {Limit::RAISE_FOLD}},
      {15, {Limit::LIMIT, Limit::NO_LIMIT, Limit::POT_LIMIT, Limit::RAISE_FOLD}},
      {16, {}},
      {-1, {Limit::LIMIT, Limit::NO_LIMIT, Limit::POT_LIMIT, Limit::RAISE_FOLD}},
  };
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
  const struct {
    int value;
    int limitMask;
    int typeMask;
  } cases[] = {{-1, 0, 0}, {0, 1, 1}, {1, 2, 2}, {2, 4, 0}, {3, 8, 0}, {4, 0, 0}, {7, 0, 0}};
  for (const auto& [value, limitMask, typeMask] : cases) {
    SCOPED_TRACE(value);
    EXPECT_EQ(PrivateTourLimitTypes::convertFromInternalTourType(Limit{value}), limitMask);
    EXPECT_EQ(PrivateTourType::convertFromInternalTourType(Tourney::TournamentType{value}), typeMask);
  }
  EXPECT_TRUE(decodeByte<PrivateTourType>(1).getIsSNG());
  EXPECT_FALSE(decodeByte<PrivateTourType>(1).getIsScheduled());
  EXPECT_TRUE(decodeByte<PrivateTourType>(-2).getIsScheduled());
}

ByteStream rules() {
  ByteStream out;
  out << byte(2);
  out << number16(1) << byte(1) << byte(6) << number16(2) << byte(6) << byte(9);
  out << number16(2) << byte(3) << byte(100);
  out << number16(1) << number16(-4) << number16(1) << byte(11) << number64(5'000'000'001) << number64(12);
  out << number16(1) << number16(-7) << byte(2) << Money(1'500, 8);
  out << number16(1) << byte(4);
  out << number64(-101) << number64(-102);
  out << number16(1) << number64(5'000'000'003) << number64(5'000'000'004);
  out << number16(-103) << -104 << number16(-105) << -106;
  return out << number16(2) << L"en" << L"sv";
}

TEST(TournamentCreationRules, HandsOutWhatIsAllowed) {
  const auto message = decode<TournamentCreationRulesReply>(rules());
  const TournamentCreationRules& allowed = message.getRules();
  EXPECT_TRUE(allowed.getTournamentTypes().getIsScheduled());

  const PrivateTourGameType& game = allowed.getGameTypes().getPrivateTourGameType(0);
  EXPECT_EQ(game.getGameType(), GameTypes::AllowedGameType::OMAHA);
  EXPECT_EQ(game.getLimit().getType(), 6);
  EXPECT_EQ(game.getSeats().getPrivateTourSeatsPerTableType(1).getNumSeats(), 9);

  ASSERT_EQ(allowed.getNumberOfRebuyStructures(), 2);
  EXPECT_EQ(allowed.getRebuyStructureType(0).getValue(), AllowedRebuyStructure::REBUYS_AND_ADDON);
  EXPECT_EQ(allowed.getRebuyStructureType(1).getValue(), AllowedRebuyStructure::UNKNOWN);

  const auto& inUnit = allowed.getBuyInFees().getPrivateTourMonetaryBuyInFeeType(0);
  EXPECT_EQ(inUnit.getMonetaryUnitId(), -4);
  EXPECT_EQ(inUnit.getPrivateTourMonetaryBuyInFeeType().getPrivateTourBuyInFeeType(0).toDebugString(),
            L"[PrivateTourBuyInFeeType: iId=11, iBuyIn=5000000001, iFee=12]");

  ASSERT_EQ(allowed.getNumberOfBlindLevelSpeeds(), 1);
  const BlindLevelSpeedInfo& speed = allowed.getBlindLevelSpeedInfo(0);
  EXPECT_EQ(speed.getBlindLevelSpeed().getValue(), AllowedBlindLevelSpeed::TURBO);
  EXPECT_EQ(speed.toDebugString(), L"[BlindLevelSpeedInfo: Id=-7, BlindSpeed=2, StartingChipStack=[MoneyInfo: 1500 ]]");

  ASSERT_EQ(allowed.getNumberOfPrizeStructures(), 1);
  EXPECT_EQ(allowed.getPrizeStructureType(0).getValue(), AllowedPrizeStructureType::DOUBLE_OR_NOTHING);

  EXPECT_EQ(allowed.getStartTimeIntervals().getPrivateTourTimeIntervalType(0).toDebugString(),
            L"[PrivateTourTimeIntervalType: iStartTime=5000000003, iEndTime=5000000004]");

  ASSERT_EQ(allowed.getNumberOfLanguages(), 2);
  EXPECT_EQ(allowed.getLanguageCode(1), L"sv");

  EXPECT_THROW(allowed.getRebuyStructureType(2), OutOfBoundsException);
  EXPECT_THROW(allowed.getBlindLevelSpeedInfo(-1), OutOfBoundsException);
  EXPECT_THROW(allowed.getLanguageCode(2), OutOfBoundsException);
  EXPECT_THROW(allowed.getGameTypes().getPrivateTourGameType(1), OutOfBoundsException);
}

TEST(TournamentCreationRules, ListsPrintTheirNamesOnly) {
  ByteStream in = rules();
  const TournamentCreationRules allowed(in);
  const PrivateTourGameType& game = allowed.getGameTypes()[0];
  const PrivateTourMonetaryBuyInFeeType& inUnit = allowed.getBuyInFees()[0];
  const struct {
    std::wstring name;
    std::wstring text;
  } cases[] = {
      {L"PrivateTourGameTypeList", allowed.getGameTypes().toDebugString()},
      {L"PrivateTourSeatsPerTableTypeList", game.getSeats().toDebugString()},
      {L"PrivateTourTimeIntervalTypeList", allowed.getStartTimeIntervals().toDebugString()},
      {L"PrivateTourBuyInFeeTypeList", inUnit.getPrivateTourMonetaryBuyInFeeType().toDebugString()},
      {L"PrivateTourMonetaryBuyInFeeTypeList", allowed.getBuyInFees().toDebugString()},
  };
  for (const auto& [name, text] : cases)
    EXPECT_EQ(text, L"[" + name + L": Obs, not empty, just not displaying all since list might be too long]");
}

TEST(CreateTourReply, IsOkForZeroOnly) {
  EXPECT_FALSE(CreateTourReply().isCreationOk());
  const struct {
    int result;
    AllowedCreatePrivateTournamentError error;
  } cases[] = {{-1, AllowedCreatePrivateTournamentError::UNKNOWN},
               {0, AllowedCreatePrivateTournamentError::NONE},
               {2, AllowedCreatePrivateTournamentError::NAME_IN_USE},
               {100, AllowedCreatePrivateTournamentError::UNKNOWN}};
  for (const auto& [result, error] : cases) {
    const auto message = decodeByte<CreateTourReplyMsg>(result);
    EXPECT_EQ(message.getReply().isCreationOk(), result == 0) << result;
    EXPECT_EQ(message.getReply().getErrorType().getValue(), error) << result;
  }
}

TEST(CreationReplies, PassTheServersCodesOnWithTheirSign) {
  const auto cancel = decodeByte<CancelTourReplyMsg>(-5);
  EXPECT_EQ(cancel.getReply().getCancelReply(), -5);
  EXPECT_EQ(cancel.toDebugString(), L"[CancelTourReplyMsg - iCreateReply=[CancelTourReply - iCancelResult =-5]]");
  const auto start = decodeByte<StartTournamentReplyMsg>(-6);
  EXPECT_EQ(start.getReply().getStartResult(), -6);
  EXPECT_EQ(start.toDebugString(),
            L"[StartTournamentReplyMsg - iCreateReply=[StartTournamentReply - iStartResult =-6]]");
  const auto fail = decodeByte<TourCreationRulesFail>(-7);
  EXPECT_EQ(fail.getFailCode(), -7);
  EXPECT_EQ(fail.toDebugString(), L"[TourCreationRulesFail - FailCode=-7]");
}

}  // namespace
}  // namespace Tessel
