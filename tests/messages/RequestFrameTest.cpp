#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/Golden.h>
#include <tests/support/Notation.h>
#include <tests/support/RecordingSink.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <set>

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
  const PlayerInfo player(1, L"n", L"c", 2, 3, L"t");
  const std::wstring rest(32767 - 2 - static_cast<std::size_t>(player.size()), L'x');
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
      std::make_unique<PGJoinGameReq>(player, lone),
      std::make_unique<PGJoinGameReq>(player, rest + L"x"),
      std::make_unique<PGJoinGameReq>(player, tooLong),
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
  EXPECT_THROW(static_cast<void>(TestRequest([](ByteStream&) { throw std::bad_alloc(); }).write(out)), std::bad_alloc);
  EXPECT_EQ(toHex(out.bytes()), "01");
  EXPECT_EQ(frameOf(ServerGlobalChatMsg(L"", fits)).substr(0, 16), "FFDC7FFF00007FFB");
  EXPECT_EQ(frameOf(PGJoinGameReq(player, rest)).size(), 2 * (4 + 32767u));
}

TEST(ServerMessageTable, EveryRequestWritesTheFrameThatItsRowAndItsFieldsTell) {
  EXPECT_EQ(serverMessageTable().size(), 55u);
  std::set<int> improved;
  for (const ServerMessageRow& row : serverMessageTable()) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(findServerMessageRow(row.id), &row);
    EXPECT_TRUE(std::ranges::count(requestCases(), row.name, &GoldenCase::name)) << "no golden frame";
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

template <class... Requests>
void expectGoldenFrames(const Requests&... requests) {
  ASSERT_EQ(requestCases().size(), sizeof...(requests));
  auto golden = requestCases().begin();
  const auto expect = [&](std::string_view name, const ServerMessage& request) {
    SCOPED_TRACE(golden->where);
    EXPECT_EQ(name, golden->name);
    EXPECT_EQ(frameOf(request), toHex(golden->bytes));
    EXPECT_EQ(UTFEncoder::toUTF8(request.toDebugString()), golden->text);
    ++golden;
  };
  (expect(typeName<Requests>(), requests), ...);
}

TEST(Requests, WriteTheirFramesAndPrintThemselves) {
  DiscardCardsInfo discarded;
  discarded.setSeat(-6);
  discarded.setDiscardedCards({7, 8});
  discarded.setDiscardedCards({0, -1, 0x105});
  const CreateTourRequestType choices(Tourney::TournamentType::SCHEDULED, GameTypes::AllowedGameType::OMAHA_HI_LO,
                                      LimitTypes::AllowedLimitType::NO_LIMIT, 0x1FF, 0x18001, 0x102, -2, 0x180, -1,
                                      0x0102030405060708, 0x12345, 0x7FFFFFFF, L"a", L"b\xE9");
  // What has no bit in the masks, and empty texts.
  const CreateTourRequestType oddChoices(Tourney::TournamentType{5}, GameTypes::AllowedGameType{0x103},
                                         LimitTypes::AllowedLimitType{7}, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"", L"");
  const JoinRequestStatus denied(JoinRequestStatus::Status::REFUSED_DENIED);
  const PGSettings settings(9, 6, PGSettings::JoinType{1}, L"ab", PokerGameInfo::GameSpeed{2});
  expectGoldenFrames(
      ServerSitIn(), ServerFold(), ServerMuckCards(), ServerShowCards(), ServerImBack(), ServerHurryAck(),
      TableInfoReq(), WaitForBigBlind(), PlayerLeaveGame(), DoNotWaitForBigBlind(), AutoPostBlind(), ManualPostBlind(),
      ShowCashierReq(), PlayerStandUpReq(), ServerSitOut(), ServerBet(7, 3, -250), ServerCheckCall(-7, -3, 1),
      ServerAllIn(1, 2, 0x0102030405060708), ServerInTurnAction(7, 2, 1, InTurnAction::InTurnActionType{-4}, 500),
      PlayerCastVote(144, -1), PlayerCancelVote(-145, 2), ServerDiscardCards(discarded), SitDownRequest(-3),
      ReserveMoney(-4000000000), JoinLobbyRequest(17), JoinGameRequest(17, 4),
      ServerChatMsg(ChatMessage(L"a", L"\xE9")), ServerGlobalChatMsg(L"a", L""), JoinWaitingReq(), LeaveWaitingReq(),
      GameListRequestMsg(), Pong(0x0102030405060708, 30), VIPRequest(), UnSubscribeVIPs(), GetTreeReq(),
      SubscribeNodeReq(SubscriptionInfo(12, 1)), UnSubscribeNodeReq(SubscriptionInfo(12, 1)), MonetaryInfoReq(),
      AccountBalanceInfoReq(), ServerSettings(0x100000003), PGJoinGameReq(PlayerInfo(1, L"n", L"", 2, 3, L"t"), L"hi"),
      PGGamesSettingsListReq(), PGCreateGameReq(settings), PGPlayerCancelJoinGameGameReq(),
      PGPlayerJoinRequestReply(denied, 42), TournamentLobbyReq(7, 42), TournamentTableReqMsg(7, 42, 3),
      TournamentJoinRequestMsg(7, 42, L""), TournamentJoinRequestMsg(7, 42, L"b\xE9"),
      TournamentUnjoinRequestMsg(7, 42), TournamentDataReqWinClient(42, 7), TournamentRebuyReplyMsg(42, false),
      TournamentRebuyReplyMsg(-2, true), TournamentCreationRulesReq(), CancelTournamentReq(42), StartTournamentReq(42),
      CreateTournamentReq(choices), CreateTournamentReq(oddChoices));
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
