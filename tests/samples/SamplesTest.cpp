#include <gtest/gtest.h>
#include <herald/herald.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using namespace Tessel;

namespace {

const std::string NAMES[] = {"table.pcap", "lobby.pcap", "tournament.pcap"};

constexpr std::uint32_t PCAP_MAGIC = 0xA1B2C3D4;
constexpr std::uint32_t LINK_TYPE_USER0 = 147;
constexpr int SERVER_TO_CLIENT = 0;
constexpr int CLIENT_TO_SERVER = 1;

struct Packet {
  std::int64_t microseconds = 0;
  int direction = 0;
  int id = 0;
  /// What follows the id.
  std::vector<std::uint8_t> rest;
};

std::vector<std::uint8_t> readFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + file.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

// The checked-in captures have the low byte first.
std::uint32_t word(std::span<const std::uint8_t> bytes, std::size_t at) {
  bytes = bytes.subspan(at, 4);
  return bytes[0] | std::uint32_t{bytes[1]} << 8 | std::uint32_t{bytes[2]} << 16 | std::uint32_t{bytes[3]} << 24;
}

std::vector<Packet> readCapture(const std::string& name) {
  constexpr std::size_t FILE_HEADER = 24;
  constexpr std::size_t PACKET_HEADER = 16;
  const std::vector<std::uint8_t> bytes = readFile(std::filesystem::path(HERALD_SAMPLES_DIR) / name);
  if (bytes.size() < FILE_HEADER || word(bytes, 0) != PCAP_MAGIC || word(bytes, 20) != LINK_TYPE_USER0)
    throw std::runtime_error("no capture: " + name);
  std::vector<Packet> packets;
  for (std::size_t at = FILE_HEADER; at < bytes.size();) {
    Packet& packet = packets.emplace_back();
    packet.microseconds = std::int64_t{word(bytes, at)} * 1'000'000 + word(bytes, at + 4);
    const std::size_t length = word(bytes, at + 8);
    if (length < 3 || length > bytes.size() - at - PACKET_HEADER) throw std::runtime_error("cut short: " + name);
    const auto payload = bytes.begin() + static_cast<std::ptrdiff_t>(at + PACKET_HEADER);
    packet.direction = payload[0];
    packet.id = static_cast<std::int16_t>(payload[1] << 8 | payload[2]);
    packet.rest.assign(payload + 3, payload + static_cast<std::ptrdiff_t>(length));
    at += PACKET_HEADER + length;
  }
  return packets;
}

TEST(Samples, AreSoundAndUseEveryMessageAndEveryRequest) {
  std::set<int> seen[2];
  for (const std::string& name : NAMES) {
    std::int64_t last = 0;
    for (const Packet& packet : readCapture(name)) {
      SCOPED_TRACE(name + " id " + std::to_string(packet.id));
      EXPECT_GT(packet.microseconds, std::exchange(last, packet.microseconds));
      seen[packet.direction == CLIENT_TO_SERVER].insert(packet.id);
      if (packet.direction == SERVER_TO_CLIENT) {
        ByteStream body(packet.rest);
        const DecodedMessage decoded = ClientMessageFactory::decode(packet.id, body);
        EXPECT_EQ(decoded.outcome, DecodeOutcome::DECODED);
        EXPECT_EQ(decoded.bytesRead, packet.rest.size());
        continue;
      }
      ASSERT_EQ(packet.direction, CLIENT_TO_SERVER);
      EXPECT_NE(findServerMessageRow(packet.id), nullptr);
      ASSERT_GE(packet.rest.size(), 2u);
      EXPECT_EQ(packet.rest[0] << 8 | packet.rest[1], static_cast<int>(packet.rest.size()) - 2);
    }
  }
  for (const ClientMessageRow& row : clientMessageTable())
    EXPECT_TRUE(!row.create || seen[0].contains(row.id)) << row.id << ' ' << row.name;
  for (const ServerMessageRow& row : serverMessageTable())
    EXPECT_TRUE(seen[1].contains(row.id)) << row.id << ' ' << row.name;
}

#ifdef HERALD_MAKE_SAMPLES
TEST(Samples, AreMadeAgainByteForByte) {
  const std::filesystem::path folder = testing::TempDir() + "herald_samples";
  std::filesystem::create_directories(folder);
  const std::string command = std::string("\"") + HERALD_MAKE_SAMPLES + "\" \"" + folder.string() + "\"";
  ASSERT_EQ(std::system(command.c_str()), 0);
  for (const std::string& name : NAMES)
    EXPECT_EQ(readFile(folder / name), readFile(std::filesystem::path(HERALD_SAMPLES_DIR) / name)) << name;
  std::filesystem::remove_all(folder);
}
#endif

}  // namespace
