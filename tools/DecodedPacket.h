#pragma once
#include <herald/inspect/FieldList.h>
#include <herald/inspect/Inspectable.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/messages/ServerMessage.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Packet.h"

namespace Tessel {

class ByteStream;
class Diagnostics;

/// The class that messages or requests of the packet's id have; empty when there is none.
std::string_view classOf(const Packet& packet);

/// What became of the bytes of a packet, the same for messages and requests. The packet must outlive it.
class DecodedPacket {
 public:
  explicit DecodedPacket(const Packet& packet);

  const Packet& packet() const { return packet_; }
  /// Empty for an id without a class.
  std::string_view className() const { return classOf(packet_); }
  DecodeOutcome outcome() const { return outcome_; }
  std::size_t bytesRead() const { return bytesRead_; }
  /// Why there is no message or request, in UTF-8.
  const std::string& reason() const { return reason_; }

  /// The message or request; nothing when nothing came of the bytes.
  std::optional<Inspectable> object() const;
  /// Its line for traces, in UTF-8 and escaped; "-" when nothing came of the bytes.
  std::string debugText(Secrets secrets) const;

  /// Whether the fields of the object alone make the same bytes again, which they do in `scratch`.
  bool isToldByItsFields(ByteStream& scratch) const;

  /// Says why it failed and at which byte, which the library's own reports leave out, and whether bytes were left.
  void complain(Diagnostics& diagnostics) const;

 private:
  void takeMessage();
  void takeRequest();
  std::wstring maskedText() const;

  const Packet& packet_;
  std::unique_ptr<ClientMessage> message_;
  std::unique_ptr<ServerMessage> request_;
  DecodeOutcome outcome_ = DecodeOutcome::NO_MESSAGE;
  std::size_t bytesRead_ = 0;
  std::string reason_;
};

/// "decoded", "readAnsweredFalse", "noMessage", "unknownId" or "readThrew".
std::string_view nameOf(DecodeOutcome outcome);

/// Whether the outcome is a fault of the bytes.
bool isFailure(DecodeOutcome outcome);

}  // namespace Tessel
