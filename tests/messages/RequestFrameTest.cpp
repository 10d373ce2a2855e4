#include <gtest/gtest.h>
#include <herald/inspect/FieldList.h>
#include <herald/inspect/Json.h>
#include <herald/messages/LobbyRequests.h>
#include <herald/messages/PrivateGameRequests.h>
#include <herald/messages/RebuyRequests.h>
#include <herald/messages/ServerMessageData.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/messages/TableRequests.h>
#include <herald/messages/TournamentCreationRequests.h>
#include <herald/messages/TournamentLobbyRequests.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>
#include <tests/support/Notation.h>
#include <tests/support/RecordingSink.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace Tessel {

namespace {

/// A request whose body is as the test says.
class TestRequest : public ImprovedServerMessage {
 public:
  explicit TestRequest(std::function<void(ByteStream&)> body) : body_(std::move(body)) {}
  explicit TestRequest(std::size_t size)
      : TestRequest([size](ByteStream& out) { out.append(std::vector<std::uint8_t>(size, 0xAB)); }) {}
  std::wstring toDebugString() const override { return L"[TestRequest]"; }
  void writeBody(ByteStream& out) const override { body_(out); }
  short getPacketDescriptor() const override { return -2; }

 private:
  std::function<void(ByteStream&)> body_;
};

std::string frameOf(const ServerMessage& request) {
  ByteStream out;
  EXPECT_TRUE(request.write(out));
  return toHex(out.bytes());
}

TEST(ImprovedServerMessage, MeasuresItsBody) {
  EXPECT_EQ(frameOf(TestRequest(0)), "FFFE0000");
  EXPECT_EQ(frameOf(TestRequest(255)).substr(0, 10), "FFFE00FFAB");
  EXPECT_EQ(frameOf(TestRequest(300)).substr(0, 10), "FFFE012CAB");
  const std::string longest = frameOf(TestRequest(32767));
  EXPECT_EQ(longest.substr(0, 10), "FFFE7FFFAB");
  EXPECT_EQ(longest.size(), 2 * (4 + 32767u));
}

TEST(ImprovedServerMessage, WritesEachFrameBehindTheOneBefore) {
  const TestRequest request(3);
  ByteStream out;
  EXPECT_TRUE(request.write(out));
  EXPECT_TRUE(ServerBet(1, 2, 3).write(out));
  EXPECT_TRUE(TestRequest(request).write(out));
  EXPECT_TRUE(TestRequest(1).write(out));
  EXPECT_EQ(toHex(out.bytes()),
            toHex(toBytes("FFFE 0003 ABABAB 0084 000D 00000001 02 0000000000000003 FFFE 0003 ABABAB FFFE 0001 AB")));
}

// Texts that have no wire form, and bodies whose size the frame cannot hold.
TEST(RequestFrame, IsWrittenWholeOrNotAtAll) {
  const std::wstring lone(1, wchar_t{0xD800});
  const std::wstring tooLong(65536, L'x');
  const std::wstring big(32768 - 2, L'x');
  const std::wstring fits(32767 - 4, L'x');
  const std::unique_ptr<ServerMessage> unwritable[] = {
      std::make_unique<TestRequest>(32768),
      std::make_unique<TestRequest>(65540),
      std::make_unique<TestRequest>([](ByteStream& out) {
        out << 7;
        throw KeystoneException(L"tests", 1, L"no body");
      }),
      std::make_unique<ServerGlobalChatMsg>(L"nick", lone),
      std::make_unique<ServerGlobalChatMsg>(lone, L"text"),
      std::make_unique<ServerGlobalChatMsg>(L"", tooLong),
      std::make_unique<ServerGlobalChatMsg>(L"", big),
      std::make_unique<PGJoinGameReq>(PlayerInfo(1, L"n", L"c", 2, 3, lone), L"text"),
      std::make_unique<PGJoinGameReq>(PlayerInfo(1, L"n", L"c", 2, 3, L"t"), lone),
      std::make_unique<PGJoinGameReq>(PlayerInfo(1, L"n", L"c", 2, 3, L"t"), big),
      std::make_unique<PGJoinGameReq>(PlayerInfo(1, L"n", L"c", 2, 3, L"t"), tooLong),
  };
  for (const auto& request : unwritable) {
    SCOPED_TRACE(&request - unwritable);
    const WithRecordingSink recording;
    ByteStream out(toBytes("0102030405"));
    out.skip(2);
    EXPECT_FALSE(request->write(out));
    EXPECT_EQ(toHex(out.bytes()), "0102030405");
    EXPECT_EQ(out.unreadCount(), 3u);
    EXPECT_EQ(recording.sink->reports.size(), 1u);
  }
  const WithRecordingSink quiet;
  ByteStream body;
  EXPECT_THROW(ServerGlobalChatMsg(L"nick", lone).writeBody(body), KeystoneException);
  ByteStream out(toBytes("01"));
  EXPECT_THROW(TestRequest([](ByteStream&) { throw std::bad_alloc(); }).write(out), std::bad_alloc);
  EXPECT_EQ(toHex(out.bytes()), "01");
  EXPECT_EQ(frameOf(ServerGlobalChatMsg(L"", fits)).substr(0, 16), "FFDC7FFF00007FFB");
}

TEST(ServerMessageTable, EveryRequestWritesTheFrameThatItsRowAndItsFieldsTell) {
  EXPECT_EQ(serverMessageTable().size(), 55u);
  std::set<int> improved;
  for (const ServerMessageRow& row : serverMessageTable()) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(findServerMessageRow(row.id), &row);
    const auto request = row.create();
    ByteStream out;
    ASSERT_TRUE(request->write(out));
    std::int16_t id = 0;
    std::int16_t size = 0;
    out >> id >> size;
    EXPECT_EQ(id, row.id);
    EXPECT_EQ(out.unreadCount(), static_cast<std::size_t>(size));
    EXPECT_EQ(toHex(out.unread()), toHex(encodedOf(*request)));
    EXPECT_TRUE(toJson(*request).starts_with("{\"class\":\"" + std::string(row.name) + '"'));
    const auto* measured = dynamic_cast<const ImprovedServerMessage*>(request.get());
    if (measured != nullptr) improved.insert(measured->getPacketDescriptor());
  }
  EXPECT_EQ(improved, (std::set{-20, -22, -36, 141, 209}));
  EXPECT_EQ(findServerMessageRow(136), nullptr);
}

TEST(Requests, WithoutABodyAreAFrameAlone) {
  const std::pair<int, std::string> requests[] = {
      {130, "ServerSitIn"},     {133, "ServerFold"},           {137, "ServerMuckCards"}, {138, "ServerShowCards"},
      {139, "ServerImBack"},    {142, "ServerHurryAck"},       {143, "TableInfoReq"},    {146, "WaitForBigBlind"},
      {-20, "PlayerLeaveGame"}, {147, "DoNotWaitForBigBlind"}, {148, "AutoPostBlind"},   {149, "ManualPostBlind"},
      {-75, "ShowCashierReq"},  {-35, "PlayerStandUpReq"}};
  for (const auto& [id, name] : requests) {
    SCOPED_TRACE(name);
    const ServerMessageRow* row = findServerMessageRow(id);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->name, name);
    EXPECT_EQ(frameOf(*row->create()).substr(4), "0000");
    EXPECT_EQ(row->create()->toDebugString(), L'[' + std::wstring(name.begin(), name.end()) + L']');
  }
}

TEST(Requests, WriteTheirFramesAndPrintThemselves) {
  DiscardCardsInfo discarded;
  discarded.setSeat(-6);
  discarded.setDiscardedCards({0, -1, 0x105});
  const CreateTourRequestType choices(Tourney::TournamentType::SCHEDULED, GameTypes::AllowedGameType::OMAHA_HI_LO,
                                      LimitTypes::AllowedLimitType::NO_LIMIT, 0x1FF, 0x18001, 0x102, -2, 0x180, -1,
                                      0x0102030405060708, 0x12345, 0x7FFFFFFF, L"a", L"b\xE9");
  // What has no bit in the masks, and empty texts.
  const CreateTourRequestType oddChoices(Tourney::TournamentType{5}, GameTypes::AllowedGameType{0x103},
                                         LimitTypes::AllowedLimitType{7}, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"", L"");
  const auto around = [](const std::wstring& name, int tableId, const std::wstring& password = L"") {
    return L"[" + name + L":  [TournamentJoinRequest - iPlayerId=7, iTournamentId=42, iTableId="
           + std::to_wstring(tableId) + L", iReplyStatus=0 iPassword&" + password + L"]]";
  };
  const struct {
    std::unique_ptr<ServerMessage> request;
    std::string_view frame;
    std::wstring text;
  } cases[] = {
      {std::make_unique<ServerSitOut>(), "0083 0008 00000000 00000000", L"[ServerSitOut: [PlayerId: id=0, seat=0]]"},
      {std::make_unique<ServerBet>(7, 3, -250), "0084 000D 00000007 03 FFFFFFFFFFFFFF06",
       L"[ServerBet: [CreditInfo: id=7, seat=3, amount=-250]]"},
      {std::make_unique<ServerCheckCall>(-7, -3, 1), "0086 000D FFFFFFF9 FD 0000000000000001",
       L"[ServerCheckCall: [CreditInfo: id=-7, seat=-3, amount=1]]"},
      {std::make_unique<ServerAllIn>(1, 2, 0x0102030405060708), "0087 000D 00000001 02 0102030405060708",
       L"[ServerAllIn: [CreditInfo: id=1, seat=2, amount=72623859790382856]]"},
      {std::make_unique<ServerInTurnAction>(7, 2, 1, InTurnAction::InTurnActionType{-4}, 500),
       "008D 0018 00000002 00000007 00000001 FFFFFFFC 00000000000001F4",
       L"[ServerInTurnAction: [playerId: 7 playerSeat: 2 betRound: 1 actionType: -4 amount: 500]"},
      {std::make_unique<PlayerCastVote>(144, -1), "0090 0008 00000090 FFFFFFFF", L"[PlayerCastVote: 144]"},
      {std::make_unique<PlayerCancelVote>(-145, 2), "0091 0008 FFFFFF6F 00000002", L"[PlayerCancelVote: -145]"},
      {std::make_unique<ServerDiscardCards>(discarded), "0096 0005 FA 03 00 FF 05",
       L"[ServerDiscardCards: [DiscardCardsInfo]]"},
      {std::make_unique<SitDownRequest>(-3), "FFE8 0001 FD", L"[SitDownRequest: Seat: -3]"},
      {std::make_unique<ReserveMoney>(-4000000000), "FFE0 0008 FFFFFFFF1194D800", L"[ReserveMoney: -4000000000]"},
      {std::make_unique<TournamentLobbyReq>(7, 42), "00CA 000F 00000007 0000002A 00000000 00 0000",
       L"[TournamentLobbyReq:]"},
      {std::make_unique<TournamentTableReqMsg>(7, 42, 3), "00CB 000F 00000007 0000002A 00000003 00 0000",
       around(L"TournamentTableReqMsg", 3)},
      {std::make_unique<TournamentJoinRequestMsg>(7, 42, L""), "00CD 000F 00000007 0000002A FFFFFFFF 00 0000",
       around(L"TournamentJoinRequestMsg", -1)},
      {std::make_unique<TournamentJoinRequestMsg>(7, 42, L"b\xE9"),
       "00CD 0012 00000007 0000002A FFFFFFFF 00 000362C3A9", around(L"TournamentJoinRequestMsg", -1, L"b\xE9")},
      {std::make_unique<TournamentUnjoinRequestMsg>(7, 42), "00CE 000F 00000007 0000002A 00000000 00 0000",
       around(L"TournamentUnjoinRequestMsg", 0)},
      {std::make_unique<TournamentDataReqWinClient>(42, 7), "00D0 000F 00000007 0000002A FFFFFFFF 00 0000",
       L"[TournamentDataReqWinClient:]"},
      {std::make_unique<TournamentRebuyReplyMsg>(42, false), "00D1 0005 0000002A 00",
       L"[OldTournamentRebuyReplyMsg: TourId=42, Accept=false]"},
      {std::make_unique<TournamentRebuyReplyMsg>(-2, true), "00D1 0005 FFFFFFFE 01",
       L"[OldTournamentRebuyReplyMsg: TourId=-2, Accept=true]"},
      {std::make_unique<TournamentCreationRulesReq>(), "00DC 0000", L"[TournamentCreationRulesReq]"},
      {std::make_unique<CancelTournamentReq>(42), "00DD 0004 0000002A", L"[CancelTournamentReq - tour id=42]"},
      {std::make_unique<StartTournamentReq>(42), "00DE 0004 0000002A", L"[StartTournamentReq - tour id=42]"},
      {std::make_unique<CreateTournamentReq>(choices),
       "00DF 0021 02 02 04 FF 8001 02 FFFE 80 FF 0102030405060708 2345 7FFFFFFF 000161 000362C3A9",
       L"[CreateTournamentReq - iTourRequest=to do]"},
      {std::make_unique<CreateTournamentReq>(oddChoices),
       "00DF 001D 00 03 00 00 0000 00 0000 00 00 0000000000000000 0000 00000000 0000 0000",
       L"[CreateTournamentReq - iTourRequest=to do]"},
  };
  for (const auto& [request, frame, text] : cases) {
    EXPECT_EQ(frameOf(*request), toHex(toBytes(frame)));
    EXPECT_EQ(request->toDebugString(), text);
  }
}

TEST(TournamentRequests, MarkWhatMayBeAPasswordAsSecret) {
  std::vector<std::string> secrets;
  for (const FieldList& fields : {FieldList(TournamentJoinRequestMsg(7, 42, L"open sesame")),
                                  FieldList(CreateTournamentReq(CreateTourRequestType()))})
    for (const Field& field : fields)
      if (field.value == "***") secrets.push_back(field.name);
  EXPECT_EQ(secrets, (std::vector<std::string>{"password", "text13", "text14"}));
}

TEST(Requests, ServerCardsCannotBeSent) {
  ByteStream out(toBytes("01"));
  EXPECT_FALSE(ServerCards().write(out));
  EXPECT_EQ(toHex(out.bytes()), "01");
  EXPECT_EQ(ServerCards().toDebugString(), L"[ServerCards: [CardsInfo: has winning cards=0, ]]");
}

TEST(ServerMessageData, KeepsAStreamWithWhereItStands) {
  ByteStream stream(toBytes("010203"));
  stream.skip(1);
  ServerMessageData data(stream);
  stream.skip(1);
  EXPECT_EQ(toHex(ServerMessageData(data).getData().unread()), "0203");
  data.setData(stream);
  EXPECT_EQ(toHex(data.getData().unread()), "03");
  EXPECT_EQ(data.getData().GetSize(), 3);
}

}  // namespace

}  // namespace Tessel
