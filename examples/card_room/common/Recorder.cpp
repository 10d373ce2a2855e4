#include "Recorder.h"

#include <chrono>
#include <initializer_list>
#include <stdexcept>

namespace CardRoom {

namespace {

constexpr std::uint32_t PCAP_MAGIC = 0xA1B2C3D4;
constexpr std::uint32_t PCAP_VERSION = 2 | 4 << 16;
constexpr std::uint32_t LINK_TYPE_USER0 = 147;
constexpr std::uint32_t LONGEST_PACKET = 262'144;

constexpr std::uint8_t FROM_SERVER = 0;
constexpr std::uint8_t FROM_CLIENT = 1;
constexpr std::uint8_t GOES_ON = 128;

// In the machine's own order of bytes, which the magic number tells.
void writeWords(std::ostream& out, std::initializer_list<std::uint32_t> words) {
  for (const std::uint32_t word : words) out.write(reinterpret_cast<const char*>(&word), sizeof(word));
}

}  // namespace

Recorder::Recorder(const std::string& file) : file_(file, std::ios::binary | std::ios::trunc) {
  writeWords(file_, {PCAP_MAGIC, PCAP_VERSION, 0, 0, LONGEST_PACKET, LINK_TYPE_USER0});
  if (!file_.flush()) throw std::runtime_error("cannot write " + file);
}

void Recorder::message(int id, std::span<const std::uint8_t> body) {
  payload_ = {static_cast<std::uint8_t>(id >> 8), static_cast<std::uint8_t>(id)};
  payload_.insert(payload_.end(), body.begin(), body.end());
  write(FROM_SERVER, payload_);
}

void Recorder::request(std::span<const std::uint8_t> frame) { write(FROM_CLIENT, frame); }

void Recorder::write(std::uint8_t direction, std::span<const std::uint8_t> payload) {
  constexpr std::size_t LONGEST_PAYLOAD = LONGEST_PACKET - 1;
  for (; payload.size() > LONGEST_PAYLOAD; payload = payload.subspan(LONGEST_PAYLOAD))
    writePacket(direction | GOES_ON, payload.first(LONGEST_PAYLOAD));
  writePacket(direction, payload);
}

void Recorder::writePacket(std::uint8_t direction, std::span<const std::uint8_t> payload) {
  using namespace std::chrono;
  const auto now = duration_cast<microseconds>(system_clock::now().time_since_epoch()).count();
  const auto length = static_cast<std::uint32_t>(payload.size() + 1);
  writeWords(file_, {static_cast<std::uint32_t>(now / 1'000'000), static_cast<std::uint32_t>(now % 1'000'000), length,
                     length});
  file_.put(static_cast<char>(direction));
  file_.write(reinterpret_cast<const char*>(payload.data()), static_cast<std::streamsize>(payload.size()));
  file_.flush();
}

}  // namespace CardRoom
