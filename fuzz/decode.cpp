// Any bytes as the body of any message: the first byte picks a row of the id table, the body follows.

#include <herald/dispatch/DefaultClientMessageHandler.h>
#include <herald/inspect/Encoding.h>
#include <herald/inspect/Json.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/platform/keystone/ByteStream.h>

#include <algorithm>

#include "Fuzzing.h"

using namespace Tessel;

namespace {

class Handler : public DefaultClientMessageHandler {
 public:
  using DefaultClientMessageHandler::handle;
  void handle(const AbusiveChatWarning&) override {}
};

// What has been read as a whole makes a body that is read as a whole and makes the same body again.
void encodeAgain(int id, const ClientMessage& message) {
  ByteStream body, again;
  require(encode(message, body), "a decoded message can be encoded");
  ByteStream in(body.bytes());
  const DecodedMessage copy = ClientMessageFactory::decode(id, in);
  require(copy.outcome == DecodeOutcome::DECODED && copy.bytesLeft == 0, "an encoded message can be decoded");
  require(encode(*copy.message, again), "a message decoded twice can be encoded");
  require(std::ranges::equal(body.bytes(), again.bytes()), "encoding gives the same bytes again");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const auto rows = clientMessageTable();
  const int id = rows[data[0] % rows.size()].id;
  ByteStream in(std::span(data + 1, size - 1));
  const DecodedMessage decoded = ClientMessageFactory::decode(id, in);
  require(decoded.bytesRead + decoded.bytesLeft == size - 1, "each byte is read or left");
  require((decoded.outcome == DecodeOutcome::DECODED || decoded.outcome == DecodeOutcome::READ_ANSWERED_FALSE)
              == (decoded.message != nullptr),
          "there is a message when its read did not throw");
  if (!decoded.message) return 0;

  decoded.message->toDebugString();
  toJson(*decoded.message);
  Handler handler;
  decoded.message->handle(handler);
  if (decoded.outcome == DecodeOutcome::DECODED) encodeAgain(id, *decoded.message);
  return 0;
}
