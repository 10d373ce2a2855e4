#include <gtest/gtest.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>
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
