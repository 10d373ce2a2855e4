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
  Outcome(int id, std::string_view notation) {
    const auto bytes = toBytes(notation);
    const WithRecordingSink recording;
    ByteStream in(bytes);
    message.reset(ClientMessageFactory::byteArrayToMessage(id, in));
    reports = recording.sink->reports;

    const WithRecordingSink recordingAgain;
    ByteStream again(bytes);
    decoded = ClientMessageFactory::decode(id, again);
    EXPECT_EQ(decoded.message != nullptr, message != nullptr);
    EXPECT_EQ(decoded.bytesLeft, in.unreadCount());
    EXPECT_EQ(decoded.bytesRead, bytes.size() - in.unreadCount());
    EXPECT_EQ(recordingAgain.sink->reports.size(), reports.size());
  }

  std::unique_ptr<ClientMessage> message;
  std::vector<KVRException> reports;
  DecodedMessage decoded;
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
    const Outcome outcome(id, "0102030405");
    EXPECT_FALSE(outcome.message);
    EXPECT_TRUE(outcome.reports.empty());
    EXPECT_EQ(outcome.decoded.outcome, DecodeOutcome::NO_MESSAGE);
    EXPECT_EQ(outcome.decoded.bytesLeft, 5u);
    EXPECT_EQ(outcome.decoded.reason, L"");
  }
}

TEST(ClientMessageFactory, ReportsAnUnknownId) {
  for (const int id : {0, 3, 4, 14, 600, -1, -95, 521, -22, INT_MAX, INT_MIN}) {
    const Outcome outcome(id, "01");
    const std::wstring text = L"Unknown casino message (" + std::to_wstring(id) + L")";
    EXPECT_FALSE(outcome.message);
    EXPECT_EQ(outcome.decoded.outcome, DecodeOutcome::UNKNOWN_ID);
    EXPECT_EQ(outcome.decoded.bytesLeft, 1u);
    EXPECT_EQ(outcome.decoded.reason, text);
    ASSERT_EQ(outcome.reports.size(), 1u);
    EXPECT_EQ(outcome.reports[0].getFile(), L"messages/ClientMessageFactory");
    EXPECT_GT(outcome.reports[0].getLine(), 0);
    EXPECT_EQ(outcome.reports[0].getText(), text);
    EXPECT_EQ(outcome.reports[0].getDetail(), L"Received " + text);
  }
}

TEST(ClientMessageFactory, ReportsAReadThatThrows) {
  // A base library exception, one of the language, and the end of the stream.
  const struct {
    int id;
    std::string_view bytes;
    std::wstring text;
    std::size_t left;
  } cases[] = {
      {35, "00000001 0001 \"x\" 00", L"[ClientOpenTableReq:[InfoVector: ]]", 1},
      {17, "80 00", L"[ClientWin]", 1},
      {44, "00000007 03 0000",
       L"[ClientVoteCast: VoteCastInfo: [VoteCastInfo: PlayerId: 7, Status: 3, NumberOfVotes: -1]]", 2},
  };
  for (const auto& [id, bytes, text, left] : cases) {
    const Outcome outcome(id, bytes);
    EXPECT_FALSE(outcome.message);
    EXPECT_EQ(outcome.decoded.outcome, DecodeOutcome::READ_THREW);
    EXPECT_EQ(outcome.decoded.bytesLeft, left);
    EXPECT_NE(outcome.decoded.reason, L"");
    ASSERT_EQ(outcome.reports.size(), 1u);
    EXPECT_EQ(outcome.reports[0].getFile(), L"messages/ClientMessageFactory");
    EXPECT_EQ(outcome.reports[0].getText(), text);
    EXPECT_EQ(outcome.reports[0].getDetail(), L"Unknown error when reading message " + text);
  }
  EXPECT_EQ(Outcome(35, "00000001 0001 \"x\" 00").decoded.reason, L"Unknown info object type.");
}

TEST(ClientMessageFactory, ReturnsAMessageWhoseReadAnsweredFalse) {
  const Outcome outcome(5, "00000009 00000000 AB");
  ASSERT_TRUE(outcome.message);
  EXPECT_TRUE(outcome.reports.empty());
  EXPECT_EQ(outcome.decoded.outcome, DecodeOutcome::READ_ANSWERED_FALSE);
  EXPECT_EQ(outcome.decoded.bytesLeft, 1u);
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
