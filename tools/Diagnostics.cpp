#include "Diagnostics.h"

#include <unistd.h>

#include <cstdio>
#include <string>

namespace Tessel {

namespace {

constexpr auto FIRST_LINE_AFTER = std::chrono::seconds(1);
constexpr auto LINE_EVERY = std::chrono::milliseconds(200);
constexpr std::uint64_t PACKETS_BETWEEN_LOOKS_AT_THE_CLOCK = 256;
constexpr const char* CLEAR_LINE = "\r\x1B[K";

void writeError(const std::string& text) { std::fwrite(text.data(), 1, text.size(), stderr); }

}  // namespace

// Lines of output on the same terminal show the progress themselves.
Diagnostics::Diagnostics()
    : wantsProgress_(isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0),
      nextLine_(Clock::now() + FIRST_LINE_AFTER) {}

void Diagnostics::expectNoOutput() { wantsProgress_ = isatty(STDERR_FILENO) != 0; }

void Diagnostics::complain(std::string_view text) {
  clearProgress();
  // Where both streams end in one file, the complaint stands behind the lines before it. Output notices a failure.
  std::fflush(stdout);
  writeError("herald: " + std::string(text) + '\n');
}

bool Diagnostics::isProgressDue(std::uint64_t packets) const {
  return wantsProgress_ && packets % PACKETS_BETWEEN_LOOKS_AT_THE_CLOCK == 0 && Clock::now() >= nextLine_;
}

void Diagnostics::showProgress(std::uint64_t packets, std::optional<double> share) {
  nextLine_ = Clock::now() + LINE_EVERY;
  hasLine_ = true;
  std::string line = CLEAR_LINE + std::to_string(packets) + " packets";
  if (share) line += ", " + std::to_string(static_cast<int>(*share * 100)) + "%";
  writeError(line);
}

void Diagnostics::clearProgress() {
  if (hasLine_) writeError(CLEAR_LINE);
  hasLine_ = false;
}

void PacketReportSink::report(const KVRException& exception) {
  diagnostics_.clearProgress();
  std::fflush(stdout);
  writeError("herald: packet " + std::to_string(packet_) + ": ");
  StandardErrorSink::report(exception);
}

}  // namespace Tessel
