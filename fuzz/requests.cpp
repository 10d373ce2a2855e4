// Any bytes as the body of any request, which the first byte picks, and as what a client has sent so far.

#include <herald/inspect/Encoding.h>
#include <herald/inspect/Json.h>
#include <herald/inspect/Requests.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>

#include <algorithm>

#include "Fuzzing.h"

using namespace Tessel;

namespace {

using Bytes = std::span<const std::uint8_t>;

void readBody(int id, Bytes bytes) {
  ByteStream body(bytes);
  const DecodedRequest decoded = decodeRequest(id, body);
  require(decoded.bytesRead + decoded.bytesLeft == bytes.size(), "each byte is read or left");
  require((decoded.outcome == DecodeOutcome::READ_THREW) == (decoded.request == nullptr),
          "there is a request, or why not");
  if (!decoded.request) return;

  decoded.request->toDebugString();
  toJson(*decoded.request);
  ByteStream first, second;
  require(encode(*decoded.request, first), "a request that was read can be encoded");
  const Bytes encoded = first.bytes();
  ByteStream again(encoded);
  const DecodedRequest copy = decodeRequest(id, again);
  if (decoded.outcome != DecodeOutcome::DECODED) return;
  require(copy.outcome == DecodeOutcome::DECODED && copy.bytesLeft == 0, "an encoded request can be read");
  require(encode(*copy.request, second) && std::ranges::equal(encoded, second.bytes()), "and makes the same bytes");
}

// The frames of what arrives in two pieces are those of what arrives at once.
void cutFrames(Bytes bytes, std::size_t firstPiece) {
  RequestFrames atOnce, inPieces;
  atOnce.append(bytes);
  inPieces.append(bytes.first(firstPiece));
  try {
    bool hasRest = true;
    while (const auto frame = atOnce.next()) {
      auto same = inPieces.next();
      if (!same && std::exchange(hasRest, false)) {
        inPieces.append(bytes.subspan(firstPiece));
        same = inPieces.next();
      }
      require(same && same->id == frame->id && std::ranges::equal(same->body, frame->body), "the same frames");
    }
  } catch (const KeystoneException&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const auto rows = serverMessageTable();
  const Bytes bytes(data + 1, size - 1);
  readBody(rows[data[0] % rows.size()].id, bytes);
  cutFrames(bytes, bytes.empty() ? 0 : data[0] % bytes.size());
  return 0;
}
