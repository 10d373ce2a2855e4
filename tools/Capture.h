#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "Packet.h"

struct pcap;

namespace Tessel {

class Diagnostics;

/// A capture that cannot be opened, or not be read on.
class CaptureError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A pcap file, read packet by packet.
class Capture {
 public:
  /// "-" is standard input. Throws `CaptureError` for a file that cannot be opened or is no capture of link type USER0.
  explicit Capture(const std::string& file);

  /// The next message or request; nothing at the end. Throws `DamagedPacket`, behind which reading can go on, and
  /// `CaptureError` when the file ends within a packet.
  std::optional<Packet> next();

  /// The share of the file that has been read, from 0 to 1; nothing for a pipe.
  std::optional<double> shareRead() const;

 private:
  struct Close {
    void operator()(pcap* handle) const;
  };

  std::unique_ptr<pcap, Close> handle_;
  std::uint64_t packets_ = 0;
  std::optional<std::int64_t> fileSize_;
};

/// Visits the messages and requests of a capture. Complains about each packet that is damaged, and about a capture that
/// cannot be opened or read to its end; answers whether there was nothing to complain about.
bool visitPackets(const std::string& file, Diagnostics& diagnostics, const std::function<void(const Packet&)>& visit);

}  // namespace Tessel
