#pragma once
#include <herald/platform/keystone/BugReporter.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace Tessel {

/// Standard error: complaints, one line each, and a line of progress where standard error is a terminal.
class Diagnostics {
 public:
  Diagnostics();
  ~Diagnostics() { clearProgress(); }
  Diagnostics(const Diagnostics&) = delete;
  Diagnostics& operator=(const Diagnostics&) = delete;

  void complain(std::string_view text);

  /// Shows progress also where standard output is the terminal.
  void expectNoOutput();

  /// Whether it is time for a new line of progress; asked for every packet.
  bool isProgressDue(std::uint64_t packets) const;
  /// The share of the capture that has been read is from 0 to 1.
  void showProgress(std::uint64_t packets, std::optional<double> share);
  /// Takes the line of progress away, before other text is written.
  void clearProgress();

 private:
  using Clock = std::chrono::steady_clock;

  bool wantsProgress_;
  bool hasLine_ = false;
  Clock::time_point nextLine_;
};

/// Writes the reports of the library as complaints about the packet that is being decoded. Messages that log themselves
/// as they are read stand in the output already, so log lines and traces are dropped.
class PacketReportSink : public StandardErrorSink {
 public:
  explicit PacketReportSink(Diagnostics& diagnostics) : diagnostics_(diagnostics) {}

  void setPacket(std::uint64_t number) { packet_ = number; }
  void report(const KVRException& exception) override;
  void trace(std::wstring_view) override {}
  void log(std::wstring_view, std::wstring_view, int) override {}

 private:
  Diagnostics& diagnostics_;
  std::uint64_t packet_ = 1;
};

/// Keeps quiet.
class SilentReportSink : public ReportSink {
 public:
  void report(const KVRException&) override {}
  void trace(std::wstring_view) override {}
  void log(std::wstring_view, std::wstring_view, int) override {}
};

/// Installs a sink of the library's reports while it lives.
class WithReportSink {
 public:
  explicit WithReportSink(std::shared_ptr<ReportSink> sink)
      : before_(BugReporter::getInstance().setSink(std::move(sink))) {}
  ~WithReportSink() { BugReporter::getInstance().setSink(std::move(before_)); }
  WithReportSink(const WithReportSink&) = delete;
  WithReportSink& operator=(const WithReportSink&) = delete;

 private:
  std::shared_ptr<ReportSink> before_;
};

}  // namespace Tessel
