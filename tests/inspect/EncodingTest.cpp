#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/Golden.h>
#include <tests/support/Notation.h>
#include <tests/support/RecordingSink.h>
#include <tools/JsonSource.h>

namespace Tessel {
namespace {

std::string encoded(const std::string& text) {
  const auto json = nlohmann::json::parse(text);
  JsonSource source(json);
  ByteStream out(toBytes("AB"));
  try {
    encodeFrom(source, json.value("class", ""), out);
    return toHex(out.bytes()).substr(2);
  } catch (const KeystoneException& failure) {
    EXPECT_EQ(toHex(out.bytes()), "AB") << "left as it was";
    return failure.what();
  }
}

std::string jsonOf(Inspectable object) { return toJson(object, {.secrets = Secrets::SHOWN}); }

TEST(EncodingTest, JsonOfEveryMessageAndRequestBecomesItsBytesAgain) {
  const WithRecordingSink quiet;
  for (const GoldenCase& golden : goldenCases()) {
    if (!golden.id || !golden.values || golden.throws) continue;
    SCOPED_TRACE(golden.where);
    ByteStream body(golden.bytes);
    const DecodedMessage decoded = ClientMessageFactory::decode(*golden.id, body);
    // JSON tells the items of a list, not a count below zero.
    if (golden.values->find("(-") == std::string::npos) {
      EXPECT_EQ(encoded(jsonOf(*decoded.message)), toHex(golden.encoded()));
    }
  }
  for (const GoldenCase& golden : requestCases()) {
    SCOPED_TRACE(golden.where);
    ByteStream frame(golden.bytes);
    std::int16_t id = 0;
    frame >> id;
    frame.skip(2);
    const std::string body = toHex(frame.unread());
    EXPECT_EQ(encoded(jsonOf(*decodeRequest(id, frame).request)), body);
  }
}

template <class Row>
void expectStartingValues(std::span<const Row> rows) {
  for (const Row& row : rows) {
    if (row.create == nullptr) continue;
    EXPECT_EQ(encoded("{\"class\":\"" + std::string(row.name) + "\"}"), toHex(encodedOf(*row.create()))) << row.name;
  }
}

TEST(EncodingTest, MissingFieldsTakeTheirStartingValues) {
  expectStartingValues(clientMessageTable());
  expectStartingValues(serverMessageTable());
  EXPECT_EQ(encoded(R"({"class":"CreditInfo","seat":3})"), "FFFFFFFF030000000000000000");
  EXPECT_EQ(encoded(R"({"class":"NewRoundInfo","players":[true,false]})"), "FFFFFFFF000000020100");
  EXPECT_EQ(encoded(R"({"class":"InfoVector","type":"com.tessel.shared.info.TreeNodeInfo","elements":[{"id":5}]})"),
            "00000001"
            "0023"
                + toHex(toBytes("\"com.tessel.shared.info.TreeNodeInfo\"")) + "0005FFFF0000FFFF00FF00");
}

TEST(EncodingTest, NamesTheFieldThatCannotBeEncoded) {
  const struct {
    std::string_view json;
    std::string_view complaint;
  } cases[] = {
      {R"({"class":"Nothing"})", R"(There is no class "Nothing".)"},
      {R"({"class":"ClientBetDone","body":{"seat":128}})", "body.seat: 128 does not fit a byte"},
      {R"({"class":"ClientBetDone","body":{"seat":-129}})", "body.seat: -129 does not fit a byte"},
      {R"({"class":"ClientBetDone","body":{"playerId":4294967296}})", "body.playerId: 4294967296 does not fit an int"},
      {R"({"class":"ClientBetDone","body":{"amount":9223372036854775808}})",
       "body.amount: 9223372036854775808 is no whole number"},
      {R"({"class":"ClientBetDone","body":{"amount":1.5}})", "body.amount: 1.5 is no whole number"},
      {R"({"class":"ClientBetDone","body":{"amount":null}})", "body.amount: null is no whole number"},
      {R"({"class":"ClientBetDone","body":{"amount":"5"}})", "body.amount: 5 is no whole number"},
      {R"({"class":"ClientBetDone","body":[]})", "body: is no record"},
      {R"({"class":"ClientBetDone","body":{"sead":1}})", R"(body.sead: "CreditInfo" has no such field)"},
      {R"({"class":"ClientBetDone","seat":1})", R"(seat: "ClientBetDone" has no such field)"},
      {R"({"class":"ClientWin","pots":{}})", "pots: is no list"},
      {R"({"class":"ClientWin","pots":[{},{"credit":{"seat":true}}]})", "pots[1].credit.seat: is no whole number"},
      {R"({"class":"VIPPlayerInfo","isPlaying":1})", "isPlaying: is no flag"},
      {R"({"class":"VIPPlayerInfo","vipName":[]})", "vipName: is no text"},
      {R"({"class":"VIPPlayerInfo","gameKind":2,"gameId":1})",
       R"(gameId: does not travel with this value of "gameKind")"},
      {R"({"class":"TournamentJoinRequestMsg","body":{"password":"***"}})", "body.password: is masked"},
      {R"({"class":"NewRoundInfo","nrOfPlayers":2,"players":[true]})",
       R"(players: has 1 item, and "nrOfPlayers" says 2)"},
      {R"({"class":"CardsInfo","cards":[{}],"hasWinningCards":true})",
       R"(winningCards: has 0 items, and "cards" says 1)"},
      {R"({"class":"InfoVector","type":"x","elements":[{}]})", R"(elements: no class has the type string "x")"},
      {R"({"class":"GetTreeReq","x":0})", R"(x: "GetTreeReq" has no such field)"},
  };
  for (const auto& [json, complaint] : cases) EXPECT_EQ(encoded(std::string(json)), complaint) << json;
  const std::string longText = R"({"class":"VIPPlayerInfo","vipName":")" + std::string(65536, 'x') + "\"}";
  EXPECT_EQ(encoded(longText), "vipName: is no UTF-8, or has more than 65535 bytes");
  std::string manyItems = R"({"class":"AccountBalanceInfo","balances":[{})";
  for (int i = 1; i < 128; ++i) manyItems += ",{}";
  EXPECT_EQ(encoded(manyItems + "]}"), "balances: 128 items are too many: the count does not fit a byte");
}

TEST(EncodingTest, TheDeepestTreeTakesNoStack) {
  constexpr int DEPTH = 100'000;
  std::string json = R"({"class":"TreeNodeInfo")";
  for (int i = 0; i < DEPTH; ++i) json += R"(,"subNodes":[{"id":7)";
  for (int i = 0; i < DEPTH; ++i) json += "}]";
  const std::string hex = encoded(json + "}");
  EXPECT_EQ(hex.size(), 2u * 11 * (DEPTH + 1));
  EXPECT_TRUE(hex.ends_with("0007FFFF0000FFFF00FF00"));
}

}  // namespace
}  // namespace Tessel
