#include "Packet.h"

namespace Tessel {

namespace {

using Bytes = std::span<const std::uint8_t>;

std::string countOf(std::size_t bytes) { return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes"); }

int readShort(Bytes bytes) { return static_cast<std::int16_t>(bytes[0] << 8 | bytes[1]); }

void checkMessage(std::uint64_t number, Bytes message) {
  if (message.size() < 2) throw DamagedPacket(number, "too short for a message id: " + countOf(message.size()));
}

void checkRequest(std::uint64_t number, Bytes frame) {
  if (frame.size() < 4) throw DamagedPacket(number, "too short for the header of a request: " + countOf(frame.size()));
  const int declared = readShort(frame.subspan(2));
  const Bytes body = frame.subspan(4);
  if (declared >= 0 && static_cast<std::size_t>(declared) == body.size()) return;
  throw DamagedPacket(
      number, "the request declares a body of " + std::to_string(declared) + " bytes and has " + countOf(body.size()));
}

}  // namespace

std::string_view nameOf(Direction direction) { return direction == Direction::FROM_SERVER ? "fromServer" : "toServer"; }

std::optional<Direction> directionNamed(std::string_view name) {
  for (const Direction direction : {Direction::FROM_SERVER, Direction::TO_SERVER})
    if (nameOf(direction) == name) return direction;
  return std::nullopt;
}

DamagedPacket::DamagedPacket(std::uint64_t number, const std::string& reason)
    : std::runtime_error("packet " + std::to_string(number) + ": " + reason) {}

Packet parseMessage(std::uint64_t number, Direction direction, Bytes bytes) {
  const bool isMessage = direction == Direction::FROM_SERVER;
  if (isMessage)
    checkMessage(number, bytes);
  else
    checkRequest(number, bytes);
  return {.number = number,
          .time = 0,
          .precision = TimePrecision::MICROSECONDS,
          .direction = direction,
          .id = readShort(bytes),
          .body = bytes.subspan(isMessage ? 2 : 4)};
}

}  // namespace Tessel
