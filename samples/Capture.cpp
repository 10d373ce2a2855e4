#include "Capture.h"

#include <stdexcept>

namespace Samples {

namespace {

constexpr int LINK_TYPE_USER0 = 147;
constexpr int LONGEST_PACKET = 65535;

constexpr int SERVER_TO_CLIENT = 0;
constexpr int CLIENT_TO_SERVER = 1;

constexpr std::int64_t SERVER_MILLISECONDS = 15;
constexpr std::int64_t CLIENT_MILLISECONDS = 240;

}  // namespace

Capture::Capture(const std::filesystem::path& file)
    : handle_(pcap_open_dead(LINK_TYPE_USER0, LONGEST_PACKET)),
      dumper_(pcap_dump_open(handle_.get(), file.string().c_str())) {
  if (!dumper_) throw std::runtime_error(pcap_geterr(handle_.get()));
}

void Capture::server(int id, const Body& body) {
  milliseconds_ += SERVER_MILLISECONDS;
  write(Body().i8(SERVER_TO_CLIENT).i16(id).fields(body));
}

void Capture::client(const Tessel::ServerMessage& request) {
  milliseconds_ += CLIENT_MILLISECONDS;
  write(Body().i8(CLIENT_TO_SERVER).record(request));
}

void Capture::write(const Body& packet) {
  const auto length = static_cast<bpf_u_int32>(packet.bytes().size());
  pcap_pkthdr header{};
  header.ts.tv_sec = static_cast<decltype(header.ts.tv_sec)>(milliseconds_ / 1000);
  header.ts.tv_usec = static_cast<decltype(header.ts.tv_usec)>(milliseconds_ % 1000 * 1000);
  header.caplen = header.len = length;
  pcap_dump(reinterpret_cast<u_char*>(dumper_.get()), &header, packet.bytes().data());
}

void Capture::close() {
  if (pcap_dump_flush(dumper_.get()) != 0 || std::ferror(pcap_dump_file(dumper_.get())) != 0)
    throw std::runtime_error("the capture could not be written whole");
  dumper_.reset();
}

}  // namespace Samples
