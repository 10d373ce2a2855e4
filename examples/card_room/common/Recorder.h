#pragma once
#include <cstdint>
#include <fstream>
#include <span>
#include <string>
#include <vector>

namespace CardRoom {

/// Records a connection as a capture that the herald command reads: a classic pcap file, one packet per message, whole
/// after every packet, so that it can be read while it grows. For one thread.
class Recorder {
 public:
  /// Replaces the file; throws `std::runtime_error` when it cannot be written.
  explicit Recorder(const std::string& file);

  /// A message of the server.
  void message(int id, std::span<const std::uint8_t> body);
  /// The frame of a request.
  void request(std::span<const std::uint8_t> frame);

 private:
  /// A payload that is too long for a packet goes on in the next ones.
  void write(std::uint8_t direction, std::span<const std::uint8_t> payload);
  void writePacket(std::uint8_t direction, std::span<const std::uint8_t> payload);

  std::ofstream file_;
  std::vector<std::uint8_t> payload_;
};

}  // namespace CardRoom
