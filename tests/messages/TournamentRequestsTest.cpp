#include <gtest/gtest.h>
#include <herald/messages/RebuyRequests.h>
#include <herald/messages/TournamentCreationRequests.h>
#include <herald/messages/TournamentLobbyRequests.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/wire/FieldSink.h>

#include <memory>
#include <string>
#include <vector>

namespace Tessel {
namespace {

std::string hex(const ByteStream& stream) {
  std::string text;
  for (const int byte : stream.bytes()) {
    text += "0123456789ABCDEF"[byte / 16];
    text += "0123456789ABCDEF"[byte % 16];
  }
  return text;
}

const CreateTourRequestType CHOICES(Tourney::TournamentType::SCHEDULED, GameTypes::AllowedGameType::OMAHA_HI_LO,
                                    LimitTypes::AllowedLimitType::NO_LIMIT, 0x1FF, 0x18001, 0x102, -2, 0x180, -1,
                                    0x0102030405060708, 0x12345, 0x7FFFFFFF, L"a", L"b\xE9");
// What has no bit in the masks, and empty texts.
const CreateTourRequestType ODD_CHOICES(Tourney::TournamentType{5}, GameTypes::AllowedGameType{0x103},
                                        LimitTypes::AllowedLimitType{7}, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"", L"");

std::wstring around(const std::wstring& name, int tableId, const std::wstring& password = L"") {
  return L"[" + name + L":  [TournamentJoinRequest - iPlayerId=7, iTournamentId=42, iTableId="
         + std::to_wstring(tableId) + L", iReplyStatus=0 iPassword&" + password + L"]]";
}

TEST(TournamentRequests, WriteTheirFrames) {
  const struct {
    std::unique_ptr<ServerMessage> request;
    std::string frame;
    std::wstring text;
  } cases[] = {
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
      {std::make_unique<CreateTournamentReq>(CHOICES),
       "00DF 0021 02 02 04 FF 8001 02 FFFE 80 FF 0102030405060708 2345 7FFFFFFF 000161 000362C3A9",
       L"[CreateTournamentReq - iTourRequest=to do]"},
      {std::make_unique<CreateTournamentReq>(ODD_CHOICES),
       "00DF 001D 00 03 00 00 0000 00 0000 00 00 0000000000000000 0000 00000000 0000 0000",
       L"[CreateTournamentReq - iTourRequest=to do]"},
  };
  for (const auto& [request, frame, text] : cases) {
    ByteStream out;
    EXPECT_TRUE(request->write(out));
    std::string expected = frame;
    std::erase(expected, ' ');
    EXPECT_EQ(hex(out), expected);
    EXPECT_EQ(request->toDebugString(), text);
  }
}

/// Collects the names of the secret texts.
class SecretNames final : public FieldSink {
 public:
  void number(std::string_view, WireType, std::int64_t) override {}
  void text(std::string_view name, std::string_view, bool secret) override {
    if (secret) names.emplace_back(name);
  }
  bool beginRecord(std::string_view, std::string_view) override { return true; }
  void endRecord() override {}
  void beginList(std::string_view, WireType, std::int64_t) override {}
  void endList() override {}
  void beginConditional(bool) override {}
  void endConditional() override {}

  std::vector<std::string> names;
};

TEST(TournamentRequests, MarkWhatMayBeAPasswordAsSecret) {
  SecretNames secrets;
  TournamentJoinRequestMsg(7, 42, L"open sesame").describe(secrets);
  CreateTournamentReq(CHOICES).describe(secrets);
  EXPECT_EQ(secrets.names, (std::vector<std::string>{"password", "text13", "text14"}));
}

}  // namespace
}  // namespace Tessel
