#include <gtest/gtest.h>
#include <herald/messages/TournamentLobbyEvents.h>
#include <herald/platform/keystone/Exceptions.h>
#include <tests/support/WireBytes.h>

#include <limits>
#include <stdexcept>

namespace Tessel {
namespace {

using namespace WireBytes;

TEST(TournamentJoinReplyMsg, EchoesTheRequestWithAStatus) {
  ByteStream body;
  body << 7 << 42 << 3 << byte(-3) << L"open sesame";
  const auto message = decode<TournamentJoinReplyMsg>(body);
  const TournamentJoinRequest request = message.getJoinReq();
  EXPECT_EQ(request.getPlayerId(), 7);
  EXPECT_EQ(request.getTournamentId(), 42);
  EXPECT_EQ(request.getTableId(), 3);
  EXPECT_EQ(request.getReplyStatus(), -3);
  EXPECT_EQ(request.getPassword(), L"open sesame");
  EXPECT_EQ(message.toDebugString(), L"[TournamentJoinReplyMsg:]");
}

// The buy-in, the fee, the prize pool and the starting chips are in units 1 to 4.
ByteStream tournament(int gameType, int limitType, int bigBlindCount) {
  ByteStream out;
  out << 42 << Money(100, 1) << Money(10, 2) << 300 << Money(30'000, 3) << 5 << 27 << Money(1'500, 4) << byte(-2)
      << byte(gameType) << byte(limitType) << L"Sunday" << L"Big one" << byte(-3) << bigBlindCount;
  for (int level = 1; level <= bigBlindCount; ++level) out << number64(level * 5'000'000'000);
  return out;
}

TEST(WinClientTournamentInfo, HasItsBigBlindsInTheUnitOfTheStartingChips) {
  const auto info = decode<TournamentDataWinClientMsg>(tournament(1, 2, 2)).getTournamentInfo();
  EXPECT_EQ(info.getBuyIn(), Money(100, 1));
  EXPECT_EQ(info.getFee(), Money(10, 2));
  EXPECT_EQ(info.getPrizePool(), Money(30'000, 3));
  EXPECT_EQ(info.getStartingChips(), Money(1'500, 4));
  ASSERT_EQ(info.numberOfBigBlinds(), 2);
  EXPECT_EQ(info.bigBlind(0), Money(5'000'000'000, 4));
  EXPECT_EQ(info.bigBlind(1), Money(10'000'000'000, 4));
  for (const int outside : {-1, 2}) EXPECT_THROW(info.bigBlind(outside), std::invalid_argument);
}

TEST(WinClientTournamentInfo, TakesACountBelowOneForNoBigBlinds) {
  for (const int count : {0, -1, std::numeric_limits<int>::min()})
    EXPECT_EQ(decode<WinClientTournamentInfo>(tournament(0, 0, count)).numberOfBigBlinds(), 0);
}

TEST(WinClientTournamentInfo, AnswersItsTypesFromTheFactories) {
  using Game = GameTypes::AllowedGameType;
  using Limit = LimitTypes::AllowedLimitType;
  const auto info = decode<WinClientTournamentInfo>(tournament(1, 2, 0));
  EXPECT_EQ(info.getGameType()->getValue(), Game::OMAHA);
  EXPECT_EQ(info.getLimitType()->getValue(), Limit::NO_LIMIT);

  const WinClientTournamentInfo fresh;
  for (const auto& unknown : {fresh, decode<WinClientTournamentInfo>(tournament(100, -100, 0))}) {
    EXPECT_EQ(unknown.getGameType()->getValue(), Game::UNKNOWN);
    EXPECT_EQ(unknown.getLimitType()->getValue(), Limit::UNKNOWN);
  }
  for (const Money& amount : {fresh.getBuyIn(), fresh.getFee(), fresh.getPrizePool(), fresh.getStartingChips()})
    EXPECT_EQ(amount, Money());
}

TEST(LobbyInfos, TakeTheVIPFlagFromBitZero) {
  for (const auto& [attributes, isVIP] : {std::pair(0, false), {1, true}, {2, false}, {-1, true}}) {
    ByteStream player, table;
    player << 7 << L"Ann" << byte(attributes);
    table << 3 << L"Table 3" << number16(-1) << byte(attributes) << Money(1, 2) << Money(3, 4);
    EXPECT_EQ(decode<LobbyPlayerInfo>(player).isVIP(), isVIP) << attributes;
    EXPECT_EQ(decode<LobbyTableInfo>(table).isVIPTable(), isVIP) << attributes;
  }
}

TEST(LobbyPlayerList, HandsOutTheChangesInOrder) {
  ByteStream body;
  body << number16(2) << 7 << L"Ann" << byte(1) << 8 << L"Bob" << byte(0) << number16(1) << 9;
  const auto list = decode<LobbyPlayerList>(body);
  const TsArray<LobbyPlayerInfo>& registered = list.getRegisteredPlayers();
  ASSERT_EQ(registered.size(), 2);
  EXPECT_EQ(registered[0].getPlayerName(), L"Ann");
  EXPECT_EQ(registered[1].getPlayerId(), 8);
  EXPECT_EQ(list.getUnregisteredPlayers(), TsArray<int>{9});
  EXPECT_EQ(list.toDebugString(), L"[LobbyPlayerList: NumUpdatedPlayers=2 NumDeletedPlayers=1]");
}

TEST(LobbyTableList, HandsOutTheChangesInOrder) {
  ByteStream body;
  body << number16(1) << 3 << L"Table 3" << number16(-9) << byte(0) << Money(100, 5) << Money(900, 6) << number16(2)
       << 4 << 5;
  const auto list = decode<LobbyTableList>(body);
  ASSERT_EQ(list.getUpdatedTables().size(), 1);
  const LobbyTableInfo& table = list.getUpdatedTables()[0];
  EXPECT_EQ(table.getNumberOfSeatedPlayers(), -9);
  EXPECT_EQ(table.getMinChipStackAtTable(), Money(100, 5));
  EXPECT_EQ(table.getMaxChipStackAtTable(), Money(900, 6));
  EXPECT_EQ(list.getRemovedTables(), (TsArray<int>{4, 5}));
  EXPECT_EQ(list.toDebugString(), L"[LobbyTableList: NumUpdatedTables=1 NumDeletedTables=2]");
}

TEST(EnteredTourListMsg, RefusesAnIndexOutside) {
  ByteStream body;
  body << number16(1) << 42 << number16(-5) << L"Sunday";
  const auto list = decode<EnteredTourListMsg>(body);
  ASSERT_EQ(list.getNumberTours(), 1);
  EXPECT_EQ(list.getEnteredTour(0).getNodeId(), -5);
  for (const int outside : {-1, 1}) EXPECT_THROW(list.getEnteredTour(outside), std::invalid_argument);
}

TEST(LobbyLists, MayBeEmptyButNotNegative) {
  ByteStream empty;
  empty << number16(0) << number16(0);
  EXPECT_TRUE(decode<LobbyPlayerList>(empty).getRegisteredPlayers().empty());
  EXPECT_TRUE(decode<LobbyTableList>(empty).getRemovedTables().empty());

  for (const auto& [first, second] : {std::pair(-1, 0), {0, -1}}) {
    SCOPED_TRACE(first);
    ByteStream players, tables;
    players << number16(first) << number16(second);
    tables << number16(first) << number16(second);
    EXPECT_THROW(LobbyPlayerList().read(players), std::invalid_argument);
    EXPECT_THROW(LobbyTableList().read(tables), std::invalid_argument);
  }
  ByteStream tours;
  tours << number16(-1);
  EXPECT_THROW(EnteredTourListMsg().read(tours), std::invalid_argument);
}

TEST(LobbyTablePlayerList, CarriesARankingList) {
  ByteStream body;
  body << 3 << number16(2) << 7 << L"Ann" << 2 << Money(1'500, 4) << 1 << 8 << L"Bob" << 1 << Money(9'000, 4) << 0;
  const auto list = decode<LobbyTablePlayerList>(body);
  EXPECT_EQ(list.getTableId(), 3);
  EXPECT_EQ(list.getRankedPlayers(), (TsArray<RankedPlayer>{RankedPlayer(7, 2, L"Ann", Money(1'500, 4), true),
                                                            RankedPlayer(8, 1, L"Bob", Money(9'000, 4), false)}));
  EXPECT_EQ(list.toDebugString(), L"[LobbyTablePlayerList: TableId=3, [TourPlayerRankingListInfo]]");
}

}  // namespace
}  // namespace Tessel
