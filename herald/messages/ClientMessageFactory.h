#pragma once
#include <herald/messages/ClientMessage.h>

#include <cstddef>
#include <memory>
#include <string>

namespace Tessel {

class ByteStream;

/// What became of a body.
enum class DecodeOutcome {
  DECODED,
  READ_ANSWERED_FALSE,  ///< There is a message, as far as it could be read.
  NO_MESSAGE,           ///< The id is known and creates nothing.
  UNKNOWN_ID,
  READ_THREW,
};

struct DecodedMessage {
  /// Null for the last three outcomes.
  std::unique_ptr<ClientMessage> message{};
  DecodeOutcome outcome = DecodeOutcome::NO_MESSAGE;
  std::size_t bytesRead = 0;
  std::size_t bytesLeft = 0;
  /// Why there is no message; empty when there is one, and for NO_MESSAGE.
  std::wstring reason{};
};

/// Makes messages out of what servers send. Without state: a call touches the stream, the new message and the reporter.
class HERALD_API ClientMessageFactory {
 public:
  /// Makes the message of the id and lets it read its body, at whose first byte the stream stands. The caller owns the
  /// result. Null for an id that creates nothing, and, after a report, for an unknown id and for a body whose read
  /// threw. Unread bytes stay in the stream. What a report says of a message is cut to some hundred characters. Memory
  /// that runs out while the body is read is a read that threw; while the message is made or a failure is reported,
  /// `std::bad_alloc` comes out of this operation, and nothing is left behind.
  [[nodiscard]] static ClientMessage* byteArrayToMessage(int id, ByteStream& in);

  /// The same, and tells what became of the body.
  [[nodiscard]] static DecodedMessage decode(int id, ByteStream& in);
};

}  // namespace Tessel
