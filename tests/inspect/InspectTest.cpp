#include <gtest/gtest.h>
#include <herald/inspect/Encoding.h>
#include <herald/inspect/FieldList.h>
#include <herald/inspect/Json.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/messages/info_objects/PlayerInGameInfo.h>
#include <herald/messages/info_objects/TournamentJoinRequest.h>
#include <herald/messages/info_objects/TreeNodeInfo.h>
#include <herald/platform/keystone/ByteStream.h>
#include <tests/support/RecordingSink.h>

#include <algorithm>
#include <nlohmann/json.hpp>

namespace Tessel {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes bytesOf(const ByteStream& stream) { return {stream.bytes().begin(), stream.bytes().end()}; }

DecodedMessage decode(int id, const Bytes& body) {
  ByteStream stream(body);
  return ClientMessageFactory::decode(id, stream);
}

// The message that this body makes is the body again, and JSON and listing tell of the same fields.
void expectFaithful(std::string_view name, const Bytes& body, const DecodedMessage& decoded) {
  ByteStream encoded;
  ASSERT_TRUE(encode(*decoded.message, encoded));
  EXPECT_EQ(bytesOf(encoded), Bytes(body.begin(), body.begin() + static_cast<std::ptrdiff_t>(decoded.bytesRead)));

  const auto json = nlohmann::ordered_json::parse(toJson(*decoded.message));
  EXPECT_EQ(json.begin().key(), "class");
  EXPECT_EQ(json.at("class"), name);
  EXPECT_EQ(json, nlohmann::ordered_json::parse(toJson(*decoded.message, {.indented = true})));

  // Flattened JSON has one more value, the class; it counts an empty record or list as a value and no other.
  const FieldList fields(*decoded.message);
  const auto isLeaf = [&](std::size_t i) { return i + 1 == fields.size() || fields[i + 1].parent != i; };
  std::size_t leaves = 0;
  for (std::size_t i = 0; i < fields.size(); ++i) leaves += isLeaf(i) ? 1 : 0;
  EXPECT_EQ(json.flatten().size(), leaves + 1);
}

// Bodies of zeros have empty lists; in bodies of ones every list and text has items, 8-bit counts one, 16-bit counts
// 257.
TEST(InspectTest, EveryMessageIsEncodedAndListedWhole) {
  const WithRecordingSink quiet;
  for (const auto& [fill, size, leastDecoded] : {std::tuple{0, 1000, 123}, {1, 1 << 18, 100}}) {
    const Bytes body(static_cast<std::size_t>(size), static_cast<std::uint8_t>(fill));
    int decodedCount = 0;
    for (const ClientMessageRow& row : clientMessageTable()) {
      SCOPED_TRACE(testing::Message() << row.name << " of bytes " << fill);
      const DecodedMessage decoded = decode(row.id, body);
      if (decoded.message == nullptr) continue;
      ++decodedCount;
      expectFaithful(row.name, body, decoded);
    }
    EXPECT_GE(decodedCount, leastDecoded);
  }
}

TEST(InspectTest, ARequestIsEncodedAsTheBodyOfItsFrame) {
  for (const ServerMessageRow& row : serverMessageTable()) {
    SCOPED_TRACE(row.name);
    const auto request = row.create();
    ByteStream frame;
    ByteStream body;
    if (!request->write(frame)) continue;
    ASSERT_TRUE(encode(*request, body));
    frame.skip(4);
    EXPECT_TRUE(std::ranges::equal(frame.unread(), body.bytes()));
    EXPECT_EQ(nlohmann::json::parse(toJson(*request)).at("class"), row.name);
  }
}

TEST(InspectTest, PrintsAMessageAsJsonInWireOrder) {
  // A pot won with two cards, and a player who sits down.
  const Bytes win{1, 0, 0, 0, 0, 7, 3, 0x7F, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 3, 0, 5, 2, 51, 0xFF};
  EXPECT_EQ(
      toJson(*decode(17, win).message),
      R"({"class":"ClientWin","pots":[{"potType":0,"credit":{"playerId":7,"seat":3,"amount":9223372036854775807},)"
      R"("handValue":{"playerSeat":3,"handType":0,"handValue":5,"specifiedCards":[51,-1]}}]})");
  EXPECT_EQ(toJson(*decode(41, {0, 0, 0, 0}).message, {.indented = true}), R"({
  "class": "AllInProbabilityResults",
  "probabilities": []
})");
  EXPECT_EQ(toJson(*decode(41, {0, 0, 0, 1, 0, 0, 0, 9, 0, 0, 0, 8}).message, {.indented = true}), R"({
  "class": "AllInProbabilityResults",
  "probabilities": [
    {
      "first": 9,
      "second": 8
    }
  ]
})");
}

TEST(InspectTest, LeavesOutWhatDidNotTravel) {
  const std::string refused = toJson(*decode(-92, {6, 0, 1, 0, 0, 0, 0, 0, 0, 0, 9}).message);
  EXPECT_NE(refused.find(R"("money":{"monetaryUnitId":1,"amount":9})"), std::string::npos) << refused;
  const std::string satDown = toJson(*decode(-92, {0}).message);
  EXPECT_EQ(satDown.find("money"), std::string::npos) << satDown;
}

TEST(InspectTest, EveryTextBecomesValidJson) {
  const struct {
    std::wstring text;
    std::string_view utf8;
  } cases[] = {
      {L"", ""},
      {L"a\"b\\c/", "a\"b\\c/"},
      {std::wstring(L"\0\x1\x1F\x7F", 4), std::string_view("\0\x1\x1F\x7F", 4)},
      {L"\b\f\n\r\t", "\b\f\n\r\t"},
      {L"Zo\u00EB \u20AC \U0001F0A1 \u2028", "Zo\u00EB \u20AC \U0001F0A1 \u2028"},
      {std::wstring(L"a") + wchar_t{0xD800} + L"b" + wchar_t{0xDFFF}, "a\uFFFDb\uFFFD"},
  };
  for (const auto& [text, utf8] : cases) {
    const auto json = nlohmann::json::parse(toJson(TsString(text)));
    EXPECT_EQ(json.at("value").get<std::string>(), utf8);
  }
  EXPECT_EQ(toJsonString("\xFF\xC0\x80z\xE2\x82"), "\"\uFFFD\uFFFD\uFFFDz\uFFFD\uFFFD\"");
}

TEST(InspectTest, MasksSecretsUnlessAsked) {
  const TournamentJoinRequest request(1, 2, L"opensesame");
  EXPECT_EQ(nlohmann::json::parse(toJson(request)).at("password"), "***");
  EXPECT_EQ(nlohmann::json::parse(toJson(request, {.secrets = Secrets::SHOWN})).at("password"), "opensesame");
  const FieldList masked(request);
  EXPECT_EQ(masked[masked.size() - 1].value, "***");
  const FieldList shown(request, Secrets::SHOWN);
  EXPECT_EQ(shown[shown.size() - 1].value, "opensesame");
}

TEST(InspectTest, ListsFieldsWithTheirPaths) {
  const DecodedMessage win = decode(17, {1, 0, 0, 0, 0, 7, 3, 0, 0, 0, 0, 0, 0, 0, 5, 3, 0, 5, 1, 51});
  const struct {
    std::string_view path;
    FieldKind kind;
    WireType type;
    std::string_view value;
  } expected[] = {
      {"pots", FieldKind::LIST, WireType::BYTE, "1"},
      {"pots[0]", FieldKind::RECORD, WireType::NONE, "WinPotInfo"},
      {"pots[0].potType", FieldKind::NUMBER, WireType::BYTE, "0"},
      {"pots[0].credit", FieldKind::RECORD, WireType::NONE, "CreditInfo"},
      {"pots[0].credit.playerId", FieldKind::NUMBER, WireType::INT, "7"},
      {"pots[0].credit.seat", FieldKind::NUMBER, WireType::BYTE, "3"},
      {"pots[0].credit.amount", FieldKind::NUMBER, WireType::INT64, "5"},
      {"pots[0].handValue", FieldKind::RECORD, WireType::NONE, "HandValueInfo"},
      {"pots[0].handValue.playerSeat", FieldKind::NUMBER, WireType::BYTE, "3"},
      {"pots[0].handValue.handType", FieldKind::NUMBER, WireType::BYTE, "0"},
      {"pots[0].handValue.handValue", FieldKind::NUMBER, WireType::BYTE, "5"},
      {"pots[0].handValue.specifiedCards", FieldKind::LIST, WireType::BYTE, "1"},
      {"pots[0].handValue.specifiedCards[0]", FieldKind::NUMBER, WireType::BYTE, "51"},
  };
  const FieldList fields(*win.message);
  ASSERT_EQ(fields.size(), std::size(expected));
  for (std::size_t i = 0; i < fields.size(); ++i) {
    EXPECT_EQ(fields.pathOf(i), expected[i].path);
    EXPECT_EQ(fields[i].kind, expected[i].kind) << expected[i].path;
    EXPECT_EQ(fields[i].type, expected[i].type) << expected[i].path;
    EXPECT_EQ(fields[i].value, expected[i].value) << expected[i].path;
  }
}

TEST(InspectTest, EncodesAllOrNothing) {
  struct LongList {
    void describe(FieldSink& sink) const {
      sink.number("before", WireType::INT, 1);
      sink.beginList("items", WireType::BYTE, 128);
      sink.endList();
    }
  };
  const WithRecordingSink recording;
  const std::wstring surrogate(1, wchar_t{0xDC00});
  ByteStream out(Bytes{9});
  EXPECT_FALSE(encode(PlayerInfo(1, surrogate, L"", 0, 0, L""), out));
  EXPECT_FALSE(encode(TsString(std::wstring(65536, L'x')), out));
  EXPECT_FALSE(encode(LongList(), out));
  EXPECT_EQ(bytesOf(out), Bytes{9});
  EXPECT_EQ(recording.sink->reports.size(), 3u);

  EXPECT_TRUE(encode(TsString(L"x"), out));
  EXPECT_EQ(bytesOf(out), (Bytes{9, 0, 1, 'x'}));
}

TEST(InspectTest, TheDeepestTreeTakesNoStackAndLinearMemory) {
  constexpr std::size_t DEPTH = 100'000;
  const Bytes node{0, 1, 0, 2, 0, 0, 0, 3, 4, 5, 1};
  Bytes body;
  for (std::size_t i = 0; i < DEPTH; ++i) body.insert(body.end(), node.begin(), node.end());
  body.back() = 0;
  ByteStream stream(body);
  TreeNodeInfo tree;
  ASSERT_TRUE(tree.read(stream));

  ByteStream encoded;
  ASSERT_TRUE(encode(tree, encoded));
  EXPECT_EQ(bytesOf(encoded), body);
  EXPECT_LT(toJson(tree, {.indented = true}).size(), DEPTH * 1000);
  const FieldList fields(tree);
  EXPECT_EQ(fields.size(), DEPTH * 8 - 1);
  EXPECT_TRUE(fields.pathOf(fields.size() - 1).ends_with("subNodes[0].subNodes"));
}

}  // namespace
}  // namespace Tessel
