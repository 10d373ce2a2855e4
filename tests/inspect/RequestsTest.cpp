#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/Golden.h>
#include <tests/support/Notation.h>
#include <tests/support/RecordingSink.h>

namespace Tessel {
namespace {

DecodedRequest decode(int id, std::span<const std::uint8_t> bytes) {
  ByteStream body(bytes);
  return decodeRequest(id, body);
}

// A copy: the next bytes that arrive would take the frame away.
struct Request {
  int id;
  std::vector<std::uint8_t> body;
};

std::vector<Request> takeAll(RequestFrames& frames) {
  std::vector<Request> requests;
  while (const auto frame = frames.next()) requests.push_back({frame->id, {frame->body.begin(), frame->body.end()}});
  return requests;
}

std::vector<std::uint8_t> framesOfAllRequests() {
  std::vector<std::uint8_t> bytes;
  for (const GoldenCase& golden : requestCases()) bytes.insert(bytes.end(), golden.bytes.begin(), golden.bytes.end());
  return bytes;
}

// However a connection hands them over.
TEST(RequestFramesTest, CutsAStreamIntoItsRequests) {
  const std::vector<std::uint8_t> stream = framesOfAllRequests();
  for (const std::size_t step : {std::size_t{1}, std::size_t{3}, std::size_t{50}, stream.size()}) {
    SCOPED_TRACE(step);
    RequestFrames frames;
    std::vector<Request> requests;
    for (std::size_t at = 0; at < stream.size(); at += step) {
      frames.append(std::span(stream).subspan(at, std::min(step, stream.size() - at)));
      for (Request& request : takeAll(frames)) requests.push_back(std::move(request));
    }
    EXPECT_EQ(frames.pendingCount(), 0u);
    ASSERT_EQ(requests.size(), requestCases().size());
    auto request = requests.begin();
    for (const GoldenCase& golden : requestCases()) {
      SCOPED_TRACE(golden.where);
      const WithRecordingSink recording;
      const DecodedRequest decoded = decode(request->id, request->body);
      EXPECT_EQ(decoded.outcome, DecodeOutcome::DECODED);
      EXPECT_EQ(decoded.bytesRead, request->body.size());
      EXPECT_EQ(decoded.bytesLeft, 0u);
      ASSERT_TRUE(decoded.request);
      EXPECT_EQ(Inspectable(*decoded.request).className(), golden.name);
      EXPECT_EQ(UTFEncoder::toUTF8(decoded.request->toDebugString()), golden.text);
      ByteStream again;
      EXPECT_TRUE(decoded.request->write(again));
      EXPECT_EQ(toHex(again.bytes()), toHex(golden.bytes));
      EXPECT_TRUE(recording.sink->reports.empty());
      ++request;
    }
  }
}

TEST(RequestFramesTest, WaitsForTheRestAndStopsAtANegativeSize) {
  RequestFrames frames;
  EXPECT_FALSE(frames.next());
  frames.append(toBytes("0084 0002 07"));
  EXPECT_FALSE(frames.next());
  EXPECT_EQ(frames.pendingCount(), 5u);
  frames.append(toBytes("08 FFFE FFFF 00"));
  const auto frame = frames.next();
  ASSERT_TRUE(frame);
  EXPECT_EQ(frame->id, 132);
  EXPECT_EQ(toHex(frame->body), "0708");
  for (int i = 0; i < 2; ++i) {
    EXPECT_THROW(frames.next(), KeystoneException);
    EXPECT_EQ(frames.pendingCount(), 5u);
  }
}

TEST(RequestsTest, EveryPrefixAndWhatTrailsIsTold) {
  for (const GoldenCase& golden : requestCases()) {
    SCOPED_TRACE(golden.where);
    const WithRecordingSink quiet;
    const int id = static_cast<std::int16_t>(golden.bytes[0] << 8 | golden.bytes[1]);
    std::vector<std::uint8_t> body(golden.bytes.begin() + 4, golden.bytes.end());
    for (std::size_t size = 0; size < body.size(); ++size) {
      const std::size_t reportsBefore = quiet.sink->reports.size();
      const DecodedRequest cut = decode(id, std::span(body).first(size));
      EXPECT_EQ(cut.bytesRead + cut.bytesLeft, size);
      EXPECT_EQ(cut.request == nullptr, cut.outcome == DecodeOutcome::READ_THREW);
      EXPECT_EQ(cut.reason.empty(), cut.request != nullptr);
      // A text that is cut is no failure of the request, as in messages, but a report.
      EXPECT_TRUE(cut.outcome != DecodeOutcome::DECODED || quiet.sink->reports.size() > reportsBefore);
    }
    body.push_back(0xAB);
    EXPECT_EQ(decode(id, body).bytesLeft, 1u);
  }
  const DecodedRequest unknown = decode(136, toBytes("0102"));
  EXPECT_EQ(unknown.outcome, DecodeOutcome::UNKNOWN_ID);
  EXPECT_EQ(unknown.reason, L"Unknown request (136)");
  EXPECT_EQ(unknown.bytesLeft, 2u);
}

}  // namespace
}  // namespace Tessel
