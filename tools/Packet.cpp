#include "Packet.h"

namespace Tessel {

namespace {

using Bytes = std::span<const std::uint8_t>;

std::string countOf(std::size_t bytes) { return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes"); }

int readShort(Bytes bytes) { return static_cast<std::int16_t>(bytes[0] << 8 | bytes[1]); }

Packet parseMessage(std::uint64_t number, Bytes message) {
  if (message.size() < 2) throw DamagedPacket(number, "too short for a message id: " + countOf(message.size()));
  return {number, Direction::FROM_SERVER, readShort(message), message.subspan(2)};
}

Packet parseRequest(std::uint64_t number, Bytes frame) {
  if (frame.size() < 4) throw DamagedPacket(number, "too short for the header of a request: " + countOf(frame.size()));
  const int declared = readShort(frame.subspan(2));
  const Bytes body = frame.subspan(4);
  if (declared < 0 || static_cast<std::size_t>(declared) != body.size()) {
    throw DamagedPacket(number, "the request declares a body of " + std::to_string(declared) + " bytes and has "
                                    + countOf(body.size()));
  }
  return {number, Direction::TO_SERVER, readShort(frame), body};
}

}  // namespace

DamagedPacket::DamagedPacket(std::uint64_t number, const std::string& reason)
    : std::runtime_error("packet " + std::to_string(number) + ": " + reason) {}

Packet parsePayload(std::uint64_t number, std::span<const std::uint8_t> payload) {
  if (payload.empty()) throw DamagedPacket(number, "the payload is empty");
  switch (payload[0]) {
    case static_cast<std::uint8_t>(Direction::FROM_SERVER):
      return parseMessage(number, payload.subspan(1));
    case static_cast<std::uint8_t>(Direction::TO_SERVER):
      return parseRequest(number, payload.subspan(1));
    default:
      throw DamagedPacket(number, "the direction byte is " + std::to_string(payload[0]) + ", not 0 or 1");
  }
}

}  // namespace Tessel
