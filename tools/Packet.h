#pragma once
#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Tessel {

enum class Direction : std::uint8_t { FROM_SERVER = 0, TO_SERVER = 1 };

enum class TimePrecision { MICROSECONDS, NANOSECONDS };

/// Set in the direction byte of a packet whose message goes on in the next packet of that direction.
inline constexpr std::uint8_t GOES_ON = 0x80;

/// The longest message that several packets may make up, in bytes, its direction byte included.
inline constexpr std::size_t LONGEST_MESSAGE = 16 << 20;

/// The longest packet that captures of this link type may hold.
inline constexpr std::size_t LONGEST_PACKET = 262144;

/// "fromServer" or "toServer".
std::string_view nameOf(Direction direction);
/// Nothing for another name.
std::optional<Direction> directionNamed(std::string_view name);

/// One message or request of a capture. The body is valid until the next packet is read.
struct Packet {
  /// Counted from 1; of a message in several packets that of the first.
  std::uint64_t number;
  /// Nanoseconds since 1970, and how many of them its capture tells apart.
  std::int64_t time;
  TimePrecision precision;
  Direction direction;
  int id;
  std::span<const std::uint8_t> body;
};

/// A packet that holds no message; the text says which and why.
class DamagedPacket : public std::runtime_error {
 public:
  DamagedPacket(std::uint64_t number, const std::string& reason);
};

/// Takes what travelled in one direction apart: the id and body of a message, or the frame of a request. It has no time
/// yet. Throws `DamagedPacket`.
Packet parseMessage(std::uint64_t number, Direction direction, std::span<const std::uint8_t> bytes);

}  // namespace Tessel
