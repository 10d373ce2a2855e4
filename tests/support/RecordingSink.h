#pragma once
#include <herald/platform/keystone/BugReporter.h>

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Tessel {

/// Keeps what was reported, traced and logged. Read it when no other thread reports.
class RecordingSink final : public ReportSink {
 public:
  struct LogLine {
    std::wstring text;
    std::wstring file;
    int level;
  };

  void report(const KVRException& exception) override {
    const std::lock_guard guard(lock_);
    reports.push_back(exception);
  }
  void trace(std::wstring_view text) override {
    const std::lock_guard guard(lock_);
    traces.emplace_back(text);
  }
  void log(std::wstring_view text, std::wstring_view file, int level) override {
    const std::lock_guard guard(lock_);
    logLines.push_back({std::wstring(text), std::wstring(file), level});
  }

  std::vector<KVRException> reports;
  std::vector<std::wstring> traces;
  std::vector<LogLine> logLines;

 private:
  std::mutex lock_;
};

/// Installs a `RecordingSink` while it lives.
class WithRecordingSink {
 public:
  WithRecordingSink() : sink(std::make_shared<RecordingSink>()), before_(BugReporter::getInstance().setSink(sink)) {}
  ~WithRecordingSink() { BugReporter::getInstance().setSink(before_); }
  WithRecordingSink(const WithRecordingSink&) = delete;
  WithRecordingSink& operator=(const WithRecordingSink&) = delete;

  const std::shared_ptr<RecordingSink> sink;

 private:
  std::shared_ptr<ReportSink> before_;
};

}  // namespace Tessel
