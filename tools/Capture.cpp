#include "Capture.h"

#include <pcap/pcap.h>

#include <cstdio>
#include <utility>

#include "Diagnostics.h"
#include "Output.h"

namespace Tessel {

namespace {

constexpr std::int64_t NANOSECONDS = 1'000'000'000;

// The first bytes of a pcap file whose times are in microseconds, in either byte order.
constexpr std::string_view MAGIC_OF_MICROSECONDS[] = {"\xA1\xB2\xC3\xD4", "\xD4\xC3\xB2\xA1"};

std::unique_ptr<Input> openInput(const std::string& file, InputOptions options) {
  try {
    return std::make_unique<Input>(file, std::move(options));
  } catch (const InputError& failure) {
    throw CaptureError(failure.what());
  }
}

// The handle closes the file.
pcap* openHandle(InputFile& input) {
  char reason[PCAP_ERRBUF_SIZE] = "";
  std::FILE* file = input.open();
  pcap* handle = pcap_fopen_offline_with_tstamp_precision(file, PCAP_TSTAMP_PRECISION_NANO, reason);
  if (handle != nullptr) return handle;
  std::fclose(file);
  try {
    input.rethrow();
  } catch (const InputError& failure) {
    throw CaptureError(failure.what());
  }
  throw CaptureError("not a pcap file: " + std::string(reason));
}

std::string describeLinkType(int type) {
  const char* name = pcap_datalink_val_to_name(type);
  return std::to_string(type) + (name != nullptr ? " (" + std::string(name) + ")" : "");
}

void checkLinkType(int type) {
  if (type == DLT_USER0) return;
  throw CaptureError("the link type is " + describeLinkType(type) + ", not " + std::to_string(DLT_USER0) + " (USER0)");
}

}  // namespace

std::optional<Capture::Head> Capture::headOf(std::span<const std::uint8_t> payload) {
  if (payload.empty()) return std::nullopt;
  const auto direction = static_cast<Direction>(payload[0] & ~GOES_ON);
  if (direction != Direction::FROM_SERVER && direction != Direction::TO_SERVER) return std::nullopt;
  return Head{direction, (payload[0] & GOES_ON) != 0};
}

void Capture::Joined::begin(std::uint64_t number, std::int64_t atTime) {
  first = number;
  time = atTime;
  bytes.clear();
  isLost = false;
}

void Capture::Close::operator()(pcap* handle) const { pcap_close(handle); }

Capture::Capture(const std::string& file, InputOptions options)
    : file_(openInput(file, std::move(options))), handle_(openHandle(file_)) {
  checkLinkType(pcap_datalink(handle_.get()));
}

std::optional<Packet> Capture::next() {
  while (const std::optional<RawPacket> packet = nextRaw())
    if (const std::optional<Packet> message = take(*packet)) return message;
  checkNothingIsOpen();
  return std::nullopt;
}

std::optional<Capture::RawPacket> Capture::nextRaw() {
  pcap_pkthdr* header = nullptr;
  const u_char* bytes = nullptr;
  const int result = pcap_next_ex(handle_.get(), &header, &bytes);
  if (result == PCAP_ERROR_BREAK) return std::nullopt;
  ++packets_;
  if (result < 0) {
    std::string reason = pcap_geterr(handle_.get());
    try {
      file_.rethrow();
    } catch (const InputError& failure) {
      reason = failure.what();
    }
    throw CaptureError("packet " + std::to_string(packets_) + ": " + reason);
  }
  if (header->caplen != header->len) {
    lose({bytes, header->caplen});
    throw DamagedPacket(packets_, (header->caplen < header->len ? "cut short: " : "longer than it was: ")
                                      + std::to_string(header->caplen) + " of " + std::to_string(header->len)
                                      + " bytes were captured");
  }
  return RawPacket{header->ts.tv_sec * NANOSECONDS + header->ts.tv_usec, {bytes, header->caplen}};
}

std::optional<Packet> Capture::take(const RawPacket& packet) {
  if (packet.payload.empty()) throw DamagedPacket(packets_, "the payload is empty");
  const std::optional<Head> head = headOf(packet.payload);
  if (!head) {
    throw DamagedPacket(packets_,
                        "the direction byte is " + std::to_string(packet.payload[0]) + ", not 0, 1, 128 or 129");
  }
  Joined& joined = joined_[static_cast<std::size_t>(head->direction)];
  if (head->goesOn || joined.isOpen()) return join(joined, *head, packet);
  return parse(packets_, packet.time, head->direction, packet.payload.subspan(1));
}

Packet Capture::parse(std::uint64_t number, std::int64_t time, Direction direction,
                      std::span<const std::uint8_t> bytes) const {
  Packet packet = parseMessage(number, direction, bytes);
  packet.time = time;
  packet.precision =
      file_.beginsWithAnyOf(MAGIC_OF_MICROSECONDS) ? TimePrecision::MICROSECONDS : TimePrecision::NANOSECONDS;
  return packet;
}

// The parts of the message stay in `joined` as long as what is answered.
std::optional<Packet> Capture::join(Joined& joined, Head head, const RawPacket& packet) {
  if (!joined.isOpen()) joined.begin(packets_, packet.time);
  const auto part = packet.payload.subspan(1);
  const bool wasLost = joined.isLost;
  if (!wasLost) {
    joined.isLost = joined.bytes.size() + part.size() >= LONGEST_MESSAGE;
    if (!joined.isLost) joined.bytes.insert(joined.bytes.end(), part.begin(), part.end());
  }
  const std::uint64_t first = joined.first;
  if (!head.goesOn) joined.first = 0;
  if (joined.isLost && !wasLost) throw DamagedPacket(first, "the message that begins here is longer than 16 MiB");
  if (head.goesOn || joined.isLost) return std::nullopt;
  return parse(first, joined.time, head.direction, joined.bytes);
}

// A part that was not captured whole takes the rest of its message with it.
void Capture::lose(std::span<const std::uint8_t> payload) {
  const std::optional<Head> head = headOf(payload);
  if (!head) return;
  Joined& joined = joined_[static_cast<std::size_t>(head->direction)];
  if (!joined.isOpen()) joined.begin(packets_, 0);
  joined.isLost = true;
  if (!head->goesOn) joined.first = 0;
}

void Capture::checkNothingIsOpen() {
  for (Joined& joined : joined_) {
    if (!joined.isOpen()) continue;
    const std::uint64_t first = std::exchange(joined.first, 0);
    if (!joined.isLost) throw DamagedPacket(first, "the message that begins here does not end");
  }
}

bool visitPackets(const CaptureCall& call, Output& output, Diagnostics& diagnostics,
                  const std::function<void(const std::string& file, const Packet& packet)>& visit) {
  bool isSound = true;
  for (const std::string& file : call.files) {
    const auto complain = [&](const std::exception& failure) {
      diagnostics.complain((file == "-" ? "standard input" : file) + ": " + failure.what());
      isSound = false;
    };
    try {
      Capture capture(file, {.follows = call.follows, .beforeWaiting = [&] { output.flush(); }});
      for (bool isAtEnd = false; !isAtEnd;) {
        try {
          const std::optional<Packet> packet = capture.next();
          isAtEnd = !packet;
          if (packet) visit(file, *packet);
          if (packet && diagnostics.isProgressDue(packet->number))
            diagnostics.showProgress(packet->number, capture.shareRead());
        } catch (const DamagedPacket& damage) {
          complain(damage);
        }
      }
    } catch (const CaptureError& failure) {
      complain(failure);
    }
  }
  return isSound;
}

}  // namespace Tessel
