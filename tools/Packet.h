#pragma once
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>

namespace Tessel {

enum class Direction : std::uint8_t { FROM_SERVER = 0, TO_SERVER = 1 };

/// One message or request of a capture. The body is valid until the next packet is read.
struct Packet {
  /// Counted from 1.
  std::uint64_t number;
  Direction direction;
  int id;
  std::span<const std::uint8_t> body;
};

/// A packet that holds no message; the text says which and why.
class DamagedPacket : public std::runtime_error {
 public:
  DamagedPacket(std::uint64_t number, const std::string& reason);
};

/// Takes a payload apart: a byte for the direction, then the id and body of a message, or the frame of a request.
/// Throws `DamagedPacket`.
Packet parsePayload(std::uint64_t number, std::span<const std::uint8_t> payload);

}  // namespace Tessel
