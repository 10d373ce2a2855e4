#include <gtest/gtest.h>
#include <herald/herald.h>

#include <limits>
#include <set>

namespace Tessel {
namespace {

constexpr int LOWEST = std::numeric_limits<int>::min();
constexpr int HIGHEST = std::numeric_limits<int>::max();

template <class Type>
const Type& constant(const Type& type) {
  return type;
}
template <class Type>
const Type& constant(const Type* type) {
  return *type;
}

// `lookUp` takes a value of the enumeration; `highest` is the last one that has a name.
template <class Enumeration, class LookUp>
void expectConstants(LookUp lookUp, Enumeration last, bool throws = false) {
  const auto of = [&](int value) -> const auto& { return constant(lookUp(static_cast<Enumeration>(value))); };
  const int highest = static_cast<int>(last);
  SCOPED_TRACE(testing::PrintToString(std::wstring(of(highest).getName())));

  std::set<std::wstring_view> names;
  for (int value = -1; value <= highest; ++value) {
    EXPECT_EQ(static_cast<int>(of(value).getValue()), value);
    EXPECT_EQ(&of(value), &of(value));
    EXPECT_FALSE(of(value).getName().empty());
    EXPECT_TRUE(names.insert(of(value).getName()).second) << value;
  }
  for (const int value : {LOWEST, -129, -2, highest + 1, 255, 256, HIGHEST}) {
    if (!throws) {
      EXPECT_EQ(&of(value), &of(-1)) << value;
      continue;
    }
    try {
      of(value);
      ADD_FAILURE() << value;
    } catch (const OutOfBoundsException& exception) {
      EXPECT_EQ(exception.getIndex(), value);
      EXPECT_EQ(exception.getLowest(), -1);
      EXPECT_EQ(exception.getHighest(), highest);
    }
  }
}

TEST(Tableau, AValueGivesItsConstantAndAnUnknownOneADefinedAnswer) {
  expectConstants(&GameTypeFactory::createGameType, GameTypes::AllowedGameType::RAZZ);
  expectConstants(&LimitTypeFactory::createLimitType, LimitTypes::AllowedLimitType::RAISE_FOLD);
  expectConstants(&DealType::getDealType, AllowedDealType::DRAW);
  expectConstants(&PotType::getPotType, AllowedPotType::UNCALLED_BET);
  expectConstants(&PrizeStructureType::getPrizeStructureType, AllowedPrizeStructureType::SATELLITE);
  expectConstants(&HandValue::getHandValue, AllowedHandValue::ROYAL_FLUSH);
  expectConstants(&TournamentStatusFactory::createTournamentStatus, AllowedTournamentStatus::CANCELLED);
  expectConstants(&TableNotificationEventFactory::createTableNotificationEvent,
                  AllowedTableNotificationEvent::FINAL_TABLE);
  expectConstants(&TournamentSynchedEvent::getTournamentSynchedEvent,
                  AllowedTournamentSynchedEvent::WAITING_FOR_ADDONS);
  expectConstants(&BlindLevelSpeedFactory::createBlindLevelSpeed, AllowedBlindLevelSpeed::HYPER_TURBO);
  expectConstants(&RebuyStructureFactory::createRebuyStructure, AllowedRebuyStructure::REBUYS_AND_ADDON);
  expectConstants(&CreatePrivateTournamentErrorFactory::createCreatePrivateTournamentError,
                  AllowedCreatePrivateTournamentError::SERVER_ERROR);
  expectConstants(&TournamentNotificationFactory::createTournamentNotification, AllowedTournamentNotification::ENDED,
                  true);
  expectConstants(&TournamentRebuyFailedFactory::createTournamentRebuyFailed,
                  AllowedTournamentRebuyFailed::SERVER_ERROR, true);
}

TEST(Tableau, TheNumbersOfTheProtocolHaveTheirMeaning) {
  const std::wstring_view limits[] = {L"Limit", L"Pot Limit", L"No Limit", L"Raise-Fold"};
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(LimitTypeFactory::createLimitType(static_cast<LimitTypes::AllowedLimitType>(i))->getName(), limits[i]);
  const std::wstring_view types[] = {L"Sit & Go", L"Scheduled", L"Unknown"};
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Tourney::getName(static_cast<Tourney::TournamentType>(i)), types[i]);
  EXPECT_EQ(getName(PlayerRegistrationStatus::IS_REGISTERED), L"Registered");
  EXPECT_EQ(getName(StatusInTour::KNOCKED_OUT), L"Knocked out");
}

TEST(TournamentLevelInformation, TheLastDurationCounts) {
  using Kind = TournamentLevelInformation::DurationKind;
  TournamentLevelInformation level(3);
  const auto expectDuration = [&](Kind kind, int hands, std::int64_t ms) {
    EXPECT_EQ(level.getDurationKind(), kind);
    EXPECT_EQ(level.getDurationInHands(), hands);
    EXPECT_EQ(level.getDurationInMs(), ms);
    EXPECT_EQ(level.isDurationInfinite(), kind == Kind::UNLIMITED);
  };
  expectDuration(Kind::UNKNOWN, -1, -1);
  level.setDurationInHands(10);
  expectDuration(Kind::HANDS, 10, -1);
  level.setDurationInMs(std::numeric_limits<std::int64_t>::max());
  expectDuration(Kind::MILLISECONDS, -1, std::numeric_limits<std::int64_t>::max());
  level.setInfiniteDuration();
  expectDuration(Kind::UNLIMITED, -1, -1);
}

TEST(TournamentLevelInformation, ReplacingTheLevelKeepsTheBreakState) {
  using State = TournamentLevelInformation::BreakState;
  TournamentLevelInformation next(4);
  next.setBlinds(TournamentBlind(Money(1, 0), Money(2, 0)));
  next.setAnte(TournamentAnte(Money(3, 0)));
  next.setDurationInHands(10);
  next.breakEnded();

  TournamentLevelInformation level;
  EXPECT_EQ(level.getLevelNumber(), -1);
  EXPECT_FALSE(level.hasBlinds() || level.hasAnte());
  EXPECT_EQ(level.getBreakState(), State::NO_BREAK);
  level.breakStartingNow();
  level.replaceLevel(next);
  EXPECT_EQ(level.getBreakState(), State::STARTED);
  EXPECT_EQ(level.getLevelNumber(), 4);
  EXPECT_EQ(level.getBlinds().getBigBlind(), Money(2, 0));
  EXPECT_EQ(level.getAnte().getAnte(), Money(3, 0));
  EXPECT_NE(level, next);
  level.breakEnded();
  EXPECT_EQ(level, next);
}

}  // namespace
}  // namespace Tessel
