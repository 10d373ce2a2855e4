#pragma once
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

struct ServerPacket {
  int id;
  std::vector<std::uint8_t> body;
};

/// What the server sent: the packets of a capture whose first byte, the direction, is 0. Empty when there are none.
inline std::vector<ServerPacket> readServerPackets(const std::string& path) {
  constexpr std::streamoff FILE_HEADER = 24;
  constexpr std::size_t PACKET_HEADER = 16;
  constexpr std::size_t LENGTH_AT = 8;
  constexpr std::size_t ID_END = 3;
  std::ifstream file(path, std::ios::binary);
  file.seekg(FILE_HEADER);
  std::vector<ServerPacket> packets;
  std::vector<std::uint8_t> header(PACKET_HEADER);
  while (file.read(reinterpret_cast<char*>(header.data()), PACKET_HEADER)) {
    const std::uint8_t* length = header.data() + LENGTH_AT;  // low byte first
    std::vector<std::uint8_t> payload(static_cast<std::size_t>(length[0] | length[1] << 8 | length[2] << 16));
    file.read(reinterpret_cast<char*>(payload.data()), static_cast<std::streamsize>(payload.size()));
    if (payload.size() < ID_END || payload[0] != 0) continue;
    const auto id = static_cast<std::int16_t>(payload[1] << 8 | payload[2]);
    packets.push_back({id, {payload.begin() + ID_END, payload.end()}});
  }
  return packets;
}
