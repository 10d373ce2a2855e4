#include "DecodedPacket.h"

#include <herald/inspect/Encoding.h>
#include <herald/inspect/Requests.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <algorithm>

#include "Diagnostics.h"
#include "Terminal.h"

namespace Tessel {

std::string_view classOf(const Packet& packet) {
  if (packet.direction == Direction::TO_SERVER) {
    const ServerMessageRow* row = findServerMessageRow(packet.id);
    return row != nullptr ? row->name : "";
  }
  const ClientMessageRow* row = findClientMessageRow(packet.id);
  return row != nullptr ? row->name : "";
}

std::string_view nameOf(DecodeOutcome outcome) {
  switch (outcome) {
    case DecodeOutcome::DECODED:
      return "decoded";
    case DecodeOutcome::READ_ANSWERED_FALSE:
      return "readAnsweredFalse";
    case DecodeOutcome::NO_MESSAGE:
      return "noMessage";
    case DecodeOutcome::UNKNOWN_ID:
      return "unknownId";
    case DecodeOutcome::READ_THREW:
      return "readThrew";
  }
  return "";
}

bool isFailure(DecodeOutcome outcome) {
  return outcome != DecodeOutcome::DECODED && outcome != DecodeOutcome::NO_MESSAGE;
}

DecodedPacket::DecodedPacket(const Packet& packet) : packet_(packet) {
  if (packet.direction == Direction::FROM_SERVER)
    takeMessage();
  else
    takeRequest();
}

void DecodedPacket::takeMessage() {
  ByteStream body = ByteStream::view(packet_.body);
  DecodedMessage decoded = ClientMessageFactory::decode(packet_.id, body);
  message_ = std::move(decoded.message);
  outcome_ = decoded.outcome;
  bytesRead_ = decoded.bytesRead;
  if (!decoded.reason.empty()) reason_ = UTFEncoder::toUTF8(decoded.reason);
}

void DecodedPacket::takeRequest() {
  ByteStream body = ByteStream::view(packet_.body);
  DecodedRequest decoded = decodeRequest(packet_.id, body);
  request_ = std::move(decoded.request);
  outcome_ = decoded.outcome;
  bytesRead_ = decoded.bytesRead;
  if (!decoded.reason.empty()) reason_ = UTFEncoder::toUTF8(decoded.reason);
}

std::optional<Inspectable> DecodedPacket::object() const {
  if (message_) return *message_;
  if (request_) return *request_;
  return std::nullopt;
}

std::string DecodedPacket::debugText(Secrets secrets) const {
  if (message_) return escaped(message_->toDebugString());
  if (!request_) return "-";
  return escaped(secrets == Secrets::MASKED ? maskedText() : request_->toDebugString());
}

// Of a request like this one, but for its secrets.
std::wstring DecodedPacket::maskedText() const {
  ByteStream masked;
  if (!encode(*request_, masked, Secrets::MASKED)) return {};
  const DecodedRequest request = decodeRequest(packet_.id, masked);
  return request.request ? request.request->toDebugString() : std::wstring();
}

bool DecodedPacket::isToldByItsFields(ByteStream& scratch) const {
  const std::optional<Inspectable> told = object();
  if (!told) return packet_.body.empty();
  scratch.truncate(0);
  return encode(*told, scratch) && std::ranges::equal(scratch.bytes(), packet_.body);
}

void DecodedPacket::complain(Diagnostics& diagnostics) const {
  const std::string place = std::to_string(bytesRead_) + " of " + std::to_string(packet_.body.size());
  const std::string why = reason_.empty() ? "" : ": " + escaped(reason_);
  const std::string packet = "packet " + std::to_string(packet_.number) + ": ";
  if (outcome_ == DecodeOutcome::READ_THREW || outcome_ == DecodeOutcome::READ_ANSWERED_FALSE)
    diagnostics.complain(packet + "the read failed at byte " + place + why);
  else if (outcome_ == DecodeOutcome::UNKNOWN_ID && packet_.direction == Direction::TO_SERVER)
    diagnostics.complain(packet + escaped(reason_));
  else if (request_ && bytesRead_ != packet_.body.size())
    diagnostics.complain(packet + "the request was read with byte " + place);
}

}  // namespace Tessel
