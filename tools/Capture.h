#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "Input.h"
#include "Packet.h"

struct pcap;

namespace Tessel {

class Diagnostics;
class Output;

/// A capture that cannot be opened, or not be read on.
class CaptureError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A pcap file, read message by message: a message that stands in several packets is joined.
class Capture {
 public:
  /// "-" is standard input; what is compressed by gzip is decompressed. Throws `CaptureError` for a file that cannot be
  /// opened or is no capture of link type USER0.
  explicit Capture(const std::string& file, InputOptions options = {});

  /// The next message or request; nothing at the end. Throws `DamagedPacket`, behind which reading can go on, and
  /// `CaptureError` when the file ends within a packet.
  std::optional<Packet> next();

  /// The share of the file that has been read, from 0 to 1; nothing for a pipe.
  std::optional<double> shareRead() const { return file_.input().shareRead(); }

 private:
  struct Close {
    void operator()(pcap* handle) const;
  };

  // What the first byte of a packet says.
  struct Head {
    Direction direction;
    bool goesOn;
  };

  // The packets of a message so far.
  struct Joined {
    bool isOpen() const { return first != 0; }
    void begin(std::uint64_t number, std::int64_t atTime);

    std::uint64_t first = 0;
    std::int64_t time = 0;
    std::vector<std::uint8_t> bytes{};
    // It is too long or has lost a part: the packets that remain of it are passed over.
    bool isLost = false;
  };

  struct RawPacket {
    std::int64_t time;
    std::span<const std::uint8_t> payload;
  };

  // Nothing for an empty payload and for an unknown direction.
  static std::optional<Head> headOf(std::span<const std::uint8_t> payload);

  std::optional<RawPacket> nextRaw();
  std::optional<Packet> take(const RawPacket& packet);
  Packet parse(std::uint64_t number, std::int64_t time, Direction direction, std::span<const std::uint8_t> bytes) const;
  std::optional<Packet> join(Joined& joined, Head head, const RawPacket& packet);
  void lose(std::span<const std::uint8_t> payload);
  void checkNothingIsOpen();

  InputFile file_;
  std::unique_ptr<pcap, Close> handle_;
  std::uint64_t packets_ = 0;
  Joined joined_[2];
};

/// The captures that a call of the command names, and what to do while they are read.
struct CaptureCall {
  std::vector<std::string> files;
  bool follows = false;
};

/// Visits the messages and requests of captures, one capture after the other. Complains about each packet that is
/// damaged, and about a capture that cannot be opened or read to its end; answers whether there was nothing to complain
/// about. What is written to `output` goes out before the reading waits.
bool visitPackets(const CaptureCall& call, Output& output, Diagnostics& diagnostics,
                  const std::function<void(const std::string& file, const Packet& packet)>& visit);

}  // namespace Tessel
