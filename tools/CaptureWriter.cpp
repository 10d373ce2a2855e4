#include "CaptureWriter.h"

#include <pcap/pcap.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <vector>

namespace Tessel {

namespace {

constexpr std::int64_t NANOSECONDS = 1'000'000'000;
constexpr std::size_t LONGEST_PART = LONGEST_PACKET - 1;

pcap* openHandle(TimePrecision precision) {
  const bool isFine = precision == TimePrecision::NANOSECONDS;
  return pcap_open_dead_with_tstamp_precision(DLT_USER0, LONGEST_PACKET,
                                              isFine ? PCAP_TSTAMP_PRECISION_NANO : PCAP_TSTAMP_PRECISION_MICRO);
}

}  // namespace

void CaptureWriter::Close::operator()(pcap* handle) const { pcap_close(handle); }
void CaptureWriter::Close::operator()(pcap_dumper* dumper) const { pcap_dump_close(dumper); }

CaptureWriter::CaptureWriter(const std::string& file, TimePrecision precision)
    : nanosecondsPerUnit_(precision == TimePrecision::NANOSECONDS ? 1 : 1000), handle_(openHandle(precision)),
      dumper_(pcap_dump_open(handle_.get(), file.c_str())) {
  if (!dumper_) throw CaptureWriteError(pcap_geterr(handle_.get()));
}

void CaptureWriter::write(Direction direction, std::int64_t time, std::span<const std::uint8_t> message) {
  const auto head = static_cast<std::uint8_t>(direction);
  for (; message.size() > LONGEST_PART; message = message.subspan(LONGEST_PART))
    writePacket(head | GOES_ON, time, message.first(LONGEST_PART));
  writePacket(head, time, message);
}

void CaptureWriter::writePacket(std::uint8_t head, std::int64_t time, std::span<const std::uint8_t> part) {
  if (time < 0 || time / NANOSECONDS > std::numeric_limits<std::uint32_t>::max())
    throw CaptureWriteError("no capture can hold the time " + std::to_string(time) + " ns");
  std::vector<std::uint8_t> payload{head};
  payload.insert(payload.end(), part.begin(), part.end());
  pcap_pkthdr header{};
  header.ts.tv_sec = static_cast<decltype(header.ts.tv_sec)>(time / NANOSECONDS);
  header.ts.tv_usec = static_cast<decltype(header.ts.tv_usec)>(time % NANOSECONDS / nanosecondsPerUnit_);
  header.caplen = header.len = static_cast<bpf_u_int32>(payload.size());
  pcap_dump(reinterpret_cast<u_char*>(dumper_.get()), &header, payload.data());
}

void CaptureWriter::flush() {
  if (pcap_dump_flush(dumper_.get()) != 0 || std::ferror(pcap_dump_file(dumper_.get())) != 0)
    throw CaptureWriteError("the capture could not be written whole");
}

void CaptureWriter::close() {
  flush();
  dumper_.reset();
}

}  // namespace Tessel
