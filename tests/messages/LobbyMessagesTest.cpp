#include <gtest/gtest.h>
#include <herald/messages/AccountEvents.h>
#include <herald/messages/ChatEvents.h>
#include <herald/messages/LobbyEvents.h>
#include <herald/messages/LobbyRequests.h>
#include <herald/messages/PrivateGameEvents.h>
#include <herald/messages/PrivateGameRequests.h>
#include <tests/support/RecordingSink.h>
#include <tests/support/WireBytes.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace Tessel {
namespace {

using namespace WireBytes;

std::string hex(const ByteStream& stream) {
  std::string text;
  for (const int byte : stream.bytes()) {
    text += "0123456789ABCDEF"[byte / 16];
    text += "0123456789ABCDEF"[byte % 16];
  }
  return text;
}

TEST(GameListUpdate, PairsChangesWithSeats) {
  const struct {
    int nrChanged, nrChangedSeats;
    bool isPaired;
  } cases[] = {{0, 0, true}, {2, 2, true}, {2, 1, false}, {0, -1, false}, {-1, -1, true}};
  for (const auto& [nrChanged, nrChangedSeats, isPaired] : cases) {
    ByteStream out;
    out << number16(12) << number16(0) << number16(1) << 70 << number16(nrChanged);
    for (int i = 0; i < nrChanged; ++i) out << 80 + i;
    out << number16(nrChangedSeats);
    for (int i = 0; i < nrChangedSeats; ++i) out << 5 + i;
    GameListUpdate update;
    EXPECT_EQ(update.read(out), isPaired);
    EXPECT_TRUE(out.eos());
    EXPECT_EQ(update.getRemovedGamesIds(), (TsArray<int>{70}));
    EXPECT_EQ(update.getChangedGamesIds().size(), std::max(nrChanged, 0));
    EXPECT_EQ(update.getChangedSeats().size(), std::max(nrChangedSeats, 0));
    EXPECT_EQ(update.getNodeId(), 12);
    EXPECT_EQ(static_cast<const ClientMessage&>(update).getNodeId(), 12);
  }
}

TEST(NodeIds, AreSetByUnsubscribingAndNotByGameList) {
  ByteStream subscription, games;
  EXPECT_EQ(decode<UnSubscribeNode>(subscription << number16(12) << byte(1)).getNodeId(), 12);
  const auto list = decode<GameList>(games << number16(12) << number16(0));
  EXPECT_EQ(list.getNodeId(), 12);
  EXPECT_EQ(static_cast<const ClientMessage&>(list).getNodeId(), -1);
}

TEST(PGPlayerReqToJoinGame, ReadsTheTextBehindABadPlayer) {
  const WithRecordingSink reports;
  ByteStream out;
  out << 5 << number16(1) << byte(0xFF) << L"please";
  PGPlayerReqToJoinGame request;
  EXPECT_FALSE(request.read(out));
  EXPECT_EQ(request.getRequestText(), L"please");
}

TEST(ClientChatMsg, IsReadWhateverItsTextsAre) {
  const WithRecordingSink reports;
  ByteStream out;
  out << number16(1) << byte(0xFF) << L"unread";
  EXPECT_TRUE(ClientChatMsg().read(out));
  EXPECT_EQ(out.unreadCount(), 8u);
}

TEST(NumPlayersLoggedIn, IsRead) {
  ByteStream out;
  EXPECT_EQ(decode<NumPlayersLoggedIn>(out << 1 << 2 << 3 << 4 << 5).toDebugString(),
            L"[NumPlayersLoggedInMsg: iRealPlayersAtTable=1, iPlayPlayersAtTable=2, iNumRealTables=3, "
            L"iNumPlayTables=4, iRealMoneyAtTables=5]");
}

TEST(LobbyMessages, PrintTheFieldsOfTheirRecords) {
  ByteStream cashier, notice, vips;
  EXPECT_EQ(decode<ShowCashierOk>(cashier << number64(5'000'000'000) << number64(2) << number64(3)).toDebugString(),
            L"[ShowCashierOk: AccountBalance=5000000000, Min buy in=2, Max buy in=3]");
  const auto message = decode<AdminNotificationMsg>(notice << L"Back at 5 %d");
  EXPECT_EQ(message.getNotification().getText(), L"Back at 5 %d");
  EXPECT_EQ(message.toDebugString(), L"[AdminNotificationMsg: Message=Back at 5 %d]");
  EXPECT_EQ(decode<VIPInfo>(vips << 0 << L"").toDebugString(),
            L"VIPInfo, use traceDebugString instead (result is to large for CString)");
}

TEST(LobbyRequests, WriteTheirFrames) {
  const PlayerInfo player(1, L"n", L"", 2, 3, L"t");
  const PGSettings settings(9, 6, PGSettings::JoinType{1}, L"ab", PokerGameInfo::GameSpeed{2});
  const std::wstring playerText = player.toDebugString();
  const struct {
    std::unique_ptr<ServerMessage> request;
    std::string frame;
    std::wstring text;
  } cases[] = {
      {std::make_unique<JoinLobbyRequest>(17), "FFF6000800000011FFFFFFFF",
       L"[JoinLobbyRequest: [JoinRequest: GameId=17, PlayerId=-1]]"},
      {std::make_unique<JoinGameRequest>(17, 4), "FFF400080000001100000004",
       L"[JoinGameRequest: [JoinRequest: GameId=17, PlayerId=4]]"},
      {std::make_unique<ServerChatMsg>(ChatMessage(L"a", L"\xE9")),
       "FFEA0007"
       "000161"
       "0002C3A9",
       L"[ServerChatMsg: [ChatMessage: Nickname=a, Message=\xE9]]"},
      {std::make_unique<ServerGlobalChatMsg>(L"a", L""),
       "FFDC0005"
       "000161"
       "0000",
       L"[ServerGlobalChatMsg: [ChatMessage: Nickname=a, Message=]]"},
      {std::make_unique<JoinWaitingReq>(), "FFDA0000", L"[JoinWaitingReq]"},
      {std::make_unique<LeaveWaitingReq>(), "FFD50000", L"[LeaveWaitingReq]"},
      {std::make_unique<GameListRequestMsg>(), "FFD00000", L"[GameListRequestMsg]"},
      {std::make_unique<Pong>(0x0102030405060708, 30),
       "FFF8000A"
       "0102030405060708"
       "001E",
       L"[Pong: server time=72623859790382856, ping=30]"},
      {std::make_unique<VIPRequest>(), "FFC40000", L"[VIPRequest:]"},
      {std::make_unique<UnSubscribeVIPs>(), "FFC30000", L"[UnSubscribeVIPs:]"},
      {std::make_unique<GetTreeReq>(), "FFC10000", L"[GetTreeReq]"},
      {std::make_unique<SubscribeNodeReq>(SubscriptionInfo(12, 1)), "FFBE0003000C01",
       L"[SubscribeNodeReq - SubscriptionInfo iInfo=[SubscriptionInfo - iNodeId=12, iNodeType=1]]\n"},
      {std::make_unique<UnSubscribeNodeReq>(SubscriptionInfo(12, 1)), "FFBD0003000C01", L"[UnSubscribeNodeReq]"},
      {std::make_unique<MonetaryInfoReq>(), "FFB10000", L"[MonetaryInfoReq]"},
      {std::make_unique<AccountBalanceInfoReq>(), "FFAF0000", L"[AccountBalanceInfoReq:]"},
      {std::make_unique<ServerSettings>(0x100000003), "008C00080000000100000003", L"[ServerSettings: 4294967299]"},
      {std::make_unique<PGJoinGameReq>(player, L"hi"),
       "02080019"
       "00000001"
       "00016E"
       "0000"
       "00000002"
       "00000003"
       "00"
       "000174"
       "00026869",
       L"[PGJoinGameReq: " + playerText + L", hi]"},
      {std::make_unique<PGGamesSettingsListReq>(), "021C0000", L"[PGGamesSettingsListReq]"},
      {std::make_unique<PGCreateGameReq>(settings),
       "021D000B"
       "00000009"
       "06"
       "01"
       "00026162"
       "02",
       L"[PGCreateGameReq: [PGSettingsInfo: settingId=9, maxNumPlayers=6, joinType=1, description=ab, speed=2]]"},
      {std::make_unique<PGPlayerCancelJoinGameGameReq>(), "021F0000", L"[PGPlayerCancelJoinGameGameReq]"},
      {std::make_unique<PGPlayerJoinRequestReply>(JoinRequestStatus(JoinRequestStatus::Status::REFUSED_DENIED), 42),
       "02210005"
       "01"
       "0000002A",
       L"[PGPlayerJoinRequestReply: [JoinRequestStatus: Status: 1]], 42"},
  };
  for (const auto& [request, frame, text] : cases) {
    ByteStream out;
    EXPECT_TRUE(request->write(out)) << frame;
    EXPECT_EQ(hex(out), frame);
    EXPECT_EQ(request->toDebugString(), text);
  }
}

TEST(LobbyRequests, LeaveTheStreamAloneWhenATextCannotBeWritten) {
  const WithRecordingSink reports;
  const std::wstring loneSurrogate(1, static_cast<wchar_t>(0xD800));
  const std::unique_ptr<ServerMessage> requests[] = {
      std::make_unique<PGJoinGameReq>(PlayerInfo(1, loneSurrogate, L"", 2, 3, L""), L"hi"),
      std::make_unique<PGJoinGameReq>(PlayerInfo(1, L"", L"", 2, 3, L""), loneSurrogate),
      std::make_unique<ServerChatMsg>(ChatMessage(L"a", loneSurrogate)),
  };
  for (const auto& request : requests) {
    ByteStream out;
    EXPECT_FALSE(request->write(out << 1));
    EXPECT_EQ(out.GetSize(), 4);
  }
  EXPECT_EQ(reports.sink->reports.size(), std::size(requests));
}

}  // namespace
}  // namespace Tessel
