#pragma once
#include <herald/messages/ClientMessageFactory.h>
#include <herald/messages/ServerMessage.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

// The server's side of requests, for test servers and for tools that look into what a client sent.

namespace Tessel {

struct DecodedRequest {
  /// Null for an unknown id and for a body whose read threw.
  std::unique_ptr<ServerMessage> request{};
  /// Never NO_MESSAGE.
  DecodeOutcome outcome = DecodeOutcome::UNKNOWN_ID;
  std::size_t bytesRead = 0;
  std::size_t bytesLeft = 0;
  /// Why there is no request; empty when there is one.
  std::wstring reason{};
};

/// Makes the request of the id and reads its body, at whose first byte the stream stands. The caller owns the result;
/// unread bytes stay in the stream. Nothing is thrown but `std::bad_alloc`, and the outcome is not reported: a server
/// decides for itself what it says of its clients. A text that is no UTF-8 is reported, as it is in messages.
[[nodiscard]] HERALD_API DecodedRequest decodeRequest(int id, ByteStream& body);

/// Cuts bytes as they come from a connection into the frames of requests. Every frame says its own length, so one that
/// is not there whole waits for the rest. Belongs to one connection; not for several threads at once.
class HERALD_API RequestFrames {
 public:
  struct Frame {
    int id = 0;
    /// Valid until the next call of `append`.
    std::span<const std::uint8_t> body{};
  };

  /// Copies what has arrived, of any length, behind what waits.
  void append(std::span<const std::uint8_t> bytes);
  /// The next whole frame, if there is one. A size below zero throws `KeystoneException`, now and whenever it is asked
  /// again: the connection is out of step.
  std::optional<Frame> next();
  /// The bytes that wait to become a frame.
  std::size_t pendingCount() const { return bytes_.size() - position_; }

 private:
  std::vector<std::uint8_t> bytes_;
  std::size_t position_ = 0;
};

}  // namespace Tessel
