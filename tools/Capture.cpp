#include "Capture.h"

#include <pcap/pcap.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

#include "Diagnostics.h"

namespace Tessel {

namespace {

std::FILE* openFile(const std::string& file) {
  if (file == "-") return stdin;
  std::FILE* opened = std::fopen(file.c_str(), "rb");
  if (opened == nullptr) throw CaptureError(std::generic_category().message(errno));
  return opened;
}

// The handle closes the file.
pcap* openHandle(std::FILE* file) {
  char reason[PCAP_ERRBUF_SIZE] = "";
  pcap* handle = pcap_fopen_offline(file, reason);
  if (handle != nullptr) return handle;
  if (file != stdin) std::fclose(file);
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

std::optional<std::int64_t> sizeOf(std::FILE* file) {
  struct stat status {};
  if (fstat(fileno(file), &status) != 0 || !S_ISREG(status.st_mode) || status.st_size == 0) return std::nullopt;
  return status.st_size;
}

}  // namespace

void Capture::Close::operator()(pcap* handle) const { pcap_close(handle); }

Capture::Capture(const std::string& file) : handle_(openHandle(openFile(file))) {
  checkLinkType(pcap_datalink(handle_.get()));
  fileSize_ = sizeOf(pcap_file(handle_.get()));
}

std::optional<Packet> Capture::next() {
  pcap_pkthdr* header = nullptr;
  const u_char* bytes = nullptr;
  const int result = pcap_next_ex(handle_.get(), &header, &bytes);
  if (result == PCAP_ERROR_BREAK) return std::nullopt;
  ++packets_;
  if (result < 0) throw CaptureError("packet " + std::to_string(packets_) + ": " + pcap_geterr(handle_.get()));
  if (header->caplen != header->len) {
    throw DamagedPacket(packets_, (header->caplen < header->len ? "cut short: " : "longer than it was: ")
                                      + std::to_string(header->caplen) + " of " + std::to_string(header->len)
                                      + " bytes were captured");
  }
  return parsePayload(packets_, {bytes, header->caplen});
}

std::optional<double> Capture::shareRead() const {
  if (!fileSize_) return std::nullopt;
  return static_cast<double>(std::ftell(pcap_file(handle_.get()))) / static_cast<double>(*fileSize_);
}

bool visitPackets(const std::string& file, Diagnostics& diagnostics, const std::function<void(const Packet&)>& visit) {
  const auto complain = [&](const std::exception& failure) {
    diagnostics.complain((file == "-" ? "standard input" : file) + ": " + failure.what());
    return false;
  };
  bool isSound = true;
  try {
    Capture capture(file);
    for (;;) {
      try {
        const std::optional<Packet> packet = capture.next();
        if (!packet) return isSound;
        visit(*packet);
        if (diagnostics.isProgressDue(packet->number)) diagnostics.showProgress(packet->number, capture.shareRead());
      } catch (const DamagedPacket& damage) {
        isSound = complain(damage);
      }
    }
  } catch (const CaptureError& failure) {
    return complain(failure);
  }
}

}  // namespace Tessel
