#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/Golden.h>
#include <tests/support/Notation.h>
#include <tests/support/RecordingSink.h>

#include <algorithm>
#include <nlohmann/json.hpp>

namespace Tessel {
namespace {

DecodedMessage decode(int id, std::span<const std::uint8_t> body) {
  ByteStream stream(body);
  return ClientMessageFactory::decode(id, stream);
}

DecodedMessage decode(int id, std::string_view notation) { return decode(id, toBytes(notation)); }

TEST(InspectTest, JsonAndListingTellOfTheSameFields) {
  const WithRecordingSink quiet;
  for (const GoldenCase& golden : goldenCases()) {
    if (!golden.id || golden.throws) continue;
    SCOPED_TRACE(golden.where);
    const DecodedMessage decoded = decode(*golden.id, golden.bytes);
    const auto json = nlohmann::ordered_json::parse(toJson(*decoded.message));
    EXPECT_EQ(json.begin().key(), "class");
    EXPECT_EQ(json.at("class"), golden.name);
    EXPECT_EQ(json, nlohmann::ordered_json::parse(toJson(*decoded.message, {.indented = true})));

    // Flattened JSON has one more value, the class; it counts an empty record or list as a value and no other.
    const FieldList fields(*decoded.message);
    std::size_t leaves = 0;
    for (std::size_t i = 0; i < fields.size(); ++i)
      leaves += i + 1 == fields.size() || fields[i + 1].parent != i ? 1 : 0;
    EXPECT_EQ(json.flatten().size(), leaves + 1);
  }
}

TEST(InspectTest, TellsNothingOfARecordThatDescribesNothing) {
  class OfAUser : public ReadableObjectInfo, public WritableObjectInfo {
   public:
    bool read(ByteStream&) override { return true; }
    bool write(ByteStream&) const override { return true; }
    ReadableObjectInfo* clone() const override { return new OfAUser(*this); }
    std::wstring toDebugString() const override { return {}; }
    int size() const override { return 0; }
  };
  const OfAUser record;
  EXPECT_EQ(nlohmann::json::parse(toJson(static_cast<const ReadableObjectInfo&>(record))).size(), 1u) << "its class";
}

TEST(InspectTest, PrintsAMessageAsJsonInWireOrder) {
  EXPECT_EQ(
      toJson(*decode(17, "01 00 00000007 03 7FFFFFFFFFFFFFFF 03 00 05 02 33 FF").message),
      R"({"class":"ClientWin","pots":[{"potType":0,"credit":{"playerId":7,"seat":3,"amount":9223372036854775807},)"
      R"("handValue":{"playerSeat":3,"handType":0,"handValue":5,"specifiedCards":[51,-1]}}]})");
  EXPECT_EQ(toJson(*decode(41, "00000000").message, {.indented = true}), R"({
  "class": "AllInProbabilityResults",
  "probabilities": []
})");
  EXPECT_EQ(toJson(*decode(41, "00000001 00000009 00000008").message, {.indented = true}), R"({
  "class": "AllInProbabilityResults",
  "probabilities": [
    {
      "first": 9,
      "second": 8
    }
  ]
})");
}

TEST(InspectTest, PrintsAFlagAsAJsonFlag) {
  EXPECT_EQ(toJson(TesselBool()), R"({"class":"TesselBool","value":false})");
  EXPECT_EQ(toJson(TesselBool(true)), R"({"class":"TesselBool","value":true})");
}

TEST(InspectTest, LeavesOutWhatDidNotTravel) {
  const std::string refused = toJson(*decode(-92, "06 0001 0000000000000009").message);
  EXPECT_NE(refused.find(R"("money":{"monetaryUnitId":1,"amount":9})"), std::string::npos) << refused;
  const std::string satDown = toJson(*decode(-92, "00").message);
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

TEST(InspectTest, EscapesWhatATerminalWouldObey) {
  const struct {
    int first;
    int last;
  } hidden[] = {{0x01, 0x1F}, {0x7F, 0x9F}, {0x061C, 0x061C}, {0x200E, 0x200F}, {0x202A, 0x202E}, {0x2066, 0x2069}};
  const auto isAsItIs = [](int character) {
    const std::string utf8 = UTFEncoder::toUTF8(std::wstring(1, static_cast<wchar_t>(character)));
    const std::string json = toJsonString("a" + utf8 + "b");
    EXPECT_EQ(nlohmann::json::parse(json).get<std::string>(), "a" + utf8 + "b");
    return json == "\"a" + utf8 + "b\"";
  };
  for (const auto& [first, last] : hidden) {
    for (int character = first; character <= last; ++character) EXPECT_FALSE(isAsItIs(character)) << character;
    EXPECT_TRUE(first == 0x01 || isAsItIs(first - 1)) << first;
    EXPECT_TRUE(isAsItIs(last + 1)) << last;
  }
  EXPECT_EQ(toJsonString("\u0085\u200E\u2069\x7F"), R"("\u0085\u200e\u2069\u007f")");
}

// Texts are looked at eight characters at a time, and short ones copied on the way.
TEST(InspectTest, FindsWhatToEscapeAnywhere) {
  for (std::size_t size = 1; size < 140; ++size) {
    for (std::size_t at = 0; at < size; ++at) {
      for (const std::string_view character : {"\x1F", "\"", "\\", "\x7F", "\u00E9"}) {
        std::string text(size, "aZ ~"[size % 4]);
        text.replace(at, 1, character);
        const auto json = nlohmann::json::parse(toJson(TsString(UTFEncoder::toWide(text))));
        ASSERT_EQ(json.at("value").get<std::string>(), text) << size << ' ' << at;
        ASSERT_EQ(toJsonString(text) == '"' + text + '"', character == "\u00E9") << size << ' ' << at;
      }
    }
  }
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
  const DecodedMessage win = decode(17, "01 00 00000007 03 0000000000000005 03 00 05 02 33 34");
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
      {"pots[0].handValue.specifiedCards", FieldKind::LIST, WireType::BYTE, "2"},
      {"pots[0].handValue.specifiedCards[0]", FieldKind::NUMBER, WireType::BYTE, "51"},
      {"pots[0].handValue.specifiedCards[1]", FieldKind::NUMBER, WireType::BYTE, "52"},
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
  ByteStream out(toBytes("09"));
  EXPECT_FALSE(encode(PlayerInfo(1, surrogate, L"", 0, 0, L""), out));
  EXPECT_FALSE(encode(TsString(std::wstring(65536, L'x')), out));
  EXPECT_FALSE(encode(LongList(), out));
  EXPECT_EQ(toHex(out.bytes()), "09");
  EXPECT_EQ(recording.sink->reports.size(), 3u);

  EXPECT_TRUE(encode(TsString(L"x"), out));
  EXPECT_EQ(toHex(out.bytes()), "09000178");
}

TEST(InspectTest, TheDeepestTreeTakesNoStackAndLinearMemory) {
  constexpr std::size_t DEPTH = 100'000;
  ByteStream stream;
  const auto node = toBytes("0001 0002 00000003 04 05 01");
  for (std::size_t i = 1; i < DEPTH; ++i) stream.append(node);
  stream.append(toBytes("0001 0002 00000003 04 05 00"));
  TreeNodeInfo tree;
  ASSERT_TRUE(tree.read(stream));
  EXPECT_TRUE(std::ranges::equal(encodedOf(tree), stream.bytes()));
  EXPECT_LT(toJson(tree, {.indented = true}).size(), DEPTH * 1000);
  const FieldList fields(tree);
  EXPECT_EQ(fields.size(), DEPTH * 8 - 1);
  EXPECT_TRUE(fields.pathOf(fields.size() - 1).ends_with("subNodes[0].subNodes"));
}

}  // namespace
}  // namespace Tessel
