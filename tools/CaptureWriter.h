#pragma once
#include <cstdint>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>

#include "Packet.h"

struct pcap;
struct pcap_dumper;

namespace Tessel {

/// A capture that cannot be written.
class CaptureWriteError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Writes a pcap file of link type USER0. A message that is too long for a packet goes on in the packets behind it.
class CaptureWriter {
 public:
  /// Replaces the file; "-" is standard output. Throws `CaptureWriteError`, as all below.
  CaptureWriter(const std::string& file, TimePrecision precision);

  /// The id and body of a server's message, or a request's frame. The time is in nanoseconds since 1970, from then to
  /// the year 2106.
  void write(Direction direction, std::int64_t time, std::span<const std::uint8_t> message);

  /// Hands on what is buffered, so that the file can be read as far as it goes.
  void flush();
  /// Completes the file. Only what this did not throw for has been written.
  void close();

 private:
  struct Close {
    void operator()(pcap* handle) const;
    void operator()(pcap_dumper* dumper) const;
  };

  void writePacket(std::uint8_t head, std::int64_t time, std::span<const std::uint8_t> part);

  std::int64_t nanosecondsPerUnit_;
  std::unique_ptr<pcap, Close> handle_;
  std::unique_ptr<pcap_dumper, Close> dumper_;
};

}  // namespace Tessel
