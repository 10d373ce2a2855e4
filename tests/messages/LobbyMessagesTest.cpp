#include <gtest/gtest.h>
#include <herald/messages/AccountEvents.h>
#include <herald/messages/LobbyEvents.h>
#include <herald/messages/LobbyRequests.h>
#include <herald/messages/PrivateGameEvents.h>
#include <herald/messages/PrivateGameRequests.h>
#include <tests/support/Told.h>
#include <tests/support/WireBytes.h>

#include <memory>
#include <string>

namespace Tessel {
namespace {

using namespace WireBytes;

TEST(NodeIds, AreSetByUpdatesAndByUnsubscribingButNotByGameLists) {
  const auto update = golden<GameListUpdate>();
  const auto list = golden<GameList>();
  EXPECT_EQ(told(update.getNodeId(), static_cast<const ClientMessage&>(update).getNodeId(),
                 golden<UnSubscribeNode>().getNodeId(), list.getNodeId(),
                 static_cast<const ClientMessage&>(list).getNodeId()),
            "-420 -420 -680 -90 -1");
}

TEST(NumPlayersLoggedIn, IsRead) {
  ByteStream out;
  const auto message = decode<NumPlayersLoggedIn>(out << 1 << 2 << 3 << 4 << 5);
  EXPECT_EQ(told(message.getRealPlayersAtTable(), message.getPlayPlayersAtTable(), message.getNumRealTables(),
                 message.getNumPlayTables(), message.getRealMoneyAtTables()),
            "1 2 3 4 5");
  EXPECT_EQ(message.toDebugString(),
            L"[NumPlayersLoggedInMsg: iRealPlayersAtTable=1, iPlayPlayersAtTable=2, iNumRealTables=3, "
            L"iNumPlayTables=4, iRealMoneyAtTables=5]");
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
      {std::make_unique<ServerChatMsg>(ChatMessage(L"a", L"\xE9")), "FFEA0007 000161 0002C3A9",
       L"[ServerChatMsg: [ChatMessage: Nickname=a, Message=\xE9]]"},
      {std::make_unique<ServerGlobalChatMsg>(L"a", L""), "FFDC0005 000161 0000",
       L"[ServerGlobalChatMsg: [ChatMessage: Nickname=a, Message=]]"},
      {std::make_unique<JoinWaitingReq>(), "FFDA0000", L"[JoinWaitingReq]"},
      {std::make_unique<LeaveWaitingReq>(), "FFD50000", L"[LeaveWaitingReq]"},
      {std::make_unique<GameListRequestMsg>(), "FFD00000", L"[GameListRequestMsg]"},
      {std::make_unique<Pong>(0x0102030405060708, 30), "FFF8000A 0102030405060708 001E",
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
       "02080019 00000001 00016E 0000 00000002 00000003 00 000174 00026869",
       L"[PGJoinGameReq: " + playerText + L", hi]"},
      {std::make_unique<PGGamesSettingsListReq>(), "021C0000", L"[PGGamesSettingsListReq]"},
      {std::make_unique<PGCreateGameReq>(settings), "021D000B 00000009 06 01 00026162 02",
       L"[PGCreateGameReq: [PGSettingsInfo: settingId=9, maxNumPlayers=6, joinType=1, description=ab, speed=2]]"},
      {std::make_unique<PGPlayerCancelJoinGameGameReq>(), "021F0000", L"[PGPlayerCancelJoinGameGameReq]"},
      {std::make_unique<PGPlayerJoinRequestReply>(JoinRequestStatus(JoinRequestStatus::Status::REFUSED_DENIED), 42),
       "02210005 01 0000002A", L"[PGPlayerJoinRequestReply: [JoinRequestStatus: Status: 1]], 42"},
  };
  for (const auto& [request, frame, text] : cases) {
    ByteStream out;
    EXPECT_TRUE(request->write(out)) << frame;
    EXPECT_EQ(toHex(out.bytes()), toHex(toBytes(frame)));
    EXPECT_EQ(request->toDebugString(), text);
  }
}

}  // namespace
}  // namespace Tessel
