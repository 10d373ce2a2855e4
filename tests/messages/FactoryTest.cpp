#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/AllocationCount.h>
#include <tests/support/Notation.h>
#include <tests/support/RecordingSink.h>

#include <climits>
#include <memory>
#include <set>

namespace Tessel {

namespace {

/// What both ways into the factory make of a body.
struct Outcome {
  Outcome(int id, std::string_view notation, DecodeOutcome outcome, std::size_t bytesLeft) {
    SCOPED_TRACE(id);
    const auto bytes = toBytes(notation);
    const WithRecordingSink recording;
    ByteStream in(bytes);
    message.reset(ClientMessageFactory::byteArrayToMessage(id, in));
    reports = recording.sink->reports;
    EXPECT_EQ(in.unreadCount(), bytesLeft);

    const WithRecordingSink recordingAgain;
    ByteStream again(bytes);
    const DecodedMessage decoded = ClientMessageFactory::decode(id, again);
    reason = decoded.reason;
    EXPECT_EQ(decoded.outcome, outcome);
    EXPECT_EQ(decoded.message != nullptr, message != nullptr);
    EXPECT_EQ(decoded.bytesLeft, bytesLeft);
    EXPECT_EQ(decoded.bytesRead, bytes.size() - bytesLeft);
    EXPECT_EQ(recordingAgain.sink->reports.size(), reports.size());
  }

  std::unique_ptr<ClientMessage> message;
  std::vector<KVRException> reports;
  std::wstring reason;
};

TEST(ClientMessageTable, HoldsEveryIdOnce) {
  const auto table = clientMessageTable();
  EXPECT_EQ(table.size(), 126u);
  std::set<int> withoutMessage;
  for (const ClientMessageRow& row : table) {
    EXPECT_EQ(findClientMessageRow(row.id), &row);
    EXPECT_EQ(row.name.empty(), row.create == nullptr) << row.id;
    if (row.create == nullptr) withoutMessage.insert(row.id);
  }
  EXPECT_EQ(withoutMessage, (std::set{-21, 36, 209}));
  EXPECT_EQ(table.front().id, -94);
  EXPECT_EQ(table.back().id, 520);
}

TEST(ClientMessageFactory, CreatesNothingForThreeIds) {
  for (const int id : {-21, 36, 209}) {
    const Outcome outcome(id, "0102030405", DecodeOutcome::NO_MESSAGE, 5);
    EXPECT_FALSE(outcome.message);
    EXPECT_TRUE(outcome.reports.empty());
    EXPECT_EQ(outcome.reason, L"");
  }
}

void expectReport(const Outcome& outcome, const std::wstring& text, const std::wstring& detail) {
  EXPECT_FALSE(outcome.message);
  ASSERT_EQ(outcome.reports.size(), 1u);
  EXPECT_EQ(outcome.reports[0].getFile(), L"messages/ClientMessageFactory");
  EXPECT_GT(outcome.reports[0].getLine(), 0);
  EXPECT_EQ(outcome.reports[0].getText(), text);
  EXPECT_EQ(outcome.reports[0].getDetail(), detail + text);
}

TEST(ClientMessageFactory, ReportsAnUnknownId) {
  for (const int id : {0, 3, 4, 14, 600, -1, -95, 521, -22, INT_MAX, INT_MIN}) {
    const Outcome outcome(id, "01", DecodeOutcome::UNKNOWN_ID, 1);
    expectReport(outcome, L"Unknown casino message (" + std::to_wstring(id) + L")", L"Received ");
    EXPECT_EQ(outcome.reason, L"Unknown casino message (" + std::to_wstring(id) + L")");
  }
}

// A base library exception, one of the language, and the end of the stream.
TEST(ClientMessageFactory, ReportsAReadThatThrows) {
  const std::wstring detail = L"Unknown error when reading message ";
  const Outcome unknown(35, "00000001 0001 \"x\" 00", DecodeOutcome::READ_THREW, 1);
  expectReport(unknown, L"[ClientOpenTableReq:[InfoVector: ]]", detail);
  EXPECT_EQ(unknown.reason, L"Unknown info object type.");
  expectReport(Outcome(17, "80 00", DecodeOutcome::READ_THREW, 1), L"[ClientWin]", detail);
  expectReport(Outcome(44, "00000007 03 0000", DecodeOutcome::READ_THREW, 2),
               L"[ClientVoteCast: VoteCastInfo: [VoteCastInfo: PlayerId: 7, Status: 3, NumberOfVotes: -1]]", detail);
}

// A count of 400 games with nothing behind it.
TEST(ClientMessageFactory, BoundsWhatAFewBytesCost) {
  GameInfoList list;
  ByteStream count(toBytes("0190"));
  const std::size_t before = allocatedBytes();
  EXPECT_THROW(list.read(count), KeystoneException);
  EXPECT_LT(allocatedBytes() - before, 4000u);

  const Outcome games(-9, "0000 0190", DecodeOutcome::READ_THREW, 0);
  ASSERT_EQ(games.reports.size(), 1u);
  EXPECT_LT(games.reports[0].getDetail().size(), 500u);

  // Three names and the beginning of a fourth, longer together than what a report repeats.
  std::string games4 = "00000004";
  const std::string name(200, 'n');
  for (int i = 0; i < 3; ++i)
    games4 += "00000001 00C8 \"" + name
              + "\" 0001 0002 0003 0004 00000005 00000006 01 02 0000000000000001 0000000000000002 51";
  const Outcome longOne(-9, games4, DecodeOutcome::READ_THREW, 0);
  ASSERT_EQ(longOne.reports.size(), 1u) << longOne.reports[0].what();
  const std::wstring& text = longOne.reports[0].getText();
  EXPECT_TRUE(text.starts_with(L"[GameList: ")) << UTFEncoder::toUTF8(text);
  EXPECT_TRUE(text.ends_with(L" more characters)")) << UTFEncoder::toUTF8(text);
  EXPECT_LT(text.size(), 400u);
}

TEST(ClientMessageFactory, ReturnsAMessageWhoseReadAnsweredFalse) {
  const Outcome outcome(5, "00000009 00000000 AB", DecodeOutcome::READ_ANSWERED_FALSE, 1);
  ASSERT_TRUE(outcome.message);
  EXPECT_TRUE(outcome.reports.empty());
  EXPECT_EQ(valuesOf(*outcome.message), "9 0 ()");
}

TEST(ClientMessageFactory, ReadsFromWhereTheStreamStandsAndLeavesTheRest) {
  ByteStream in(toBytes("FFFF 0000000A 77"));
  in.skip(2);
  const DecodedMessage decoded = ClientMessageFactory::decode(45, in);
  ASSERT_TRUE(decoded.message);
  EXPECT_EQ(decoded.outcome, DecodeOutcome::DECODED);
  EXPECT_EQ(decoded.bytesRead, 4u);
  EXPECT_EQ(decoded.bytesLeft, 1u);
  EXPECT_EQ(decoded.reason, L"");
  EXPECT_EQ(valuesOf(*decoded.message), "10");
}

TEST(ClientMessage, CarriesANodeIdThatNeverTravels) {
  const auto message = findClientMessageRow(26)->create();
  EXPECT_EQ(message->getNodeId(), -1);
  message->setNodeId(7);
  ByteStream empty;
  EXPECT_TRUE(message->read(empty));
  EXPECT_EQ(message->getNodeId(), 7);
  EXPECT_EQ(valuesOf(*message), "");
}

}  // namespace

}  // namespace Tessel
