#include <herald/platform/keystone/BugReporter.h>
#include <herald/platform/keystone/StringUtils.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <cstdio>
#include <string>
#include <utility>

namespace Tessel {

namespace {

// One write per line, so that lines of several threads do not mix.
void writeLine(std::wstring_view line) {
  std::string bytes = UTFEncoder::toUTF8(StringUtils::escapeLine(line));
  bytes += '\n';
  std::fwrite(bytes.data(), 1, bytes.size(), stderr);
}

std::wstring place(std::wstring_view file, int line) {
  return std::wstring(file) + L"(" + std::to_wstring(line) + L")";
}

}  // namespace

BugReporterInterface::~BugReporterInterface() = default;
ReportSink::~ReportSink() = default;
StandardErrorSink::~StandardErrorSink() = default;

void StandardErrorSink::report(const KVRException& exception) {
  std::wstring line =
      L"report: " + place(exception.getFile(), exception.getLine()) + L": " + UTFEncoder::toWide(exception.what());
  if (!exception.getCaughtByFile().empty())
    line += L", caught by " + place(exception.getCaughtByFile(), exception.getCaughtByLine());
  writeLine(line);
}

void StandardErrorSink::trace(std::wstring_view text) { writeLine(L"trace: " + std::wstring(text)); }

void StandardErrorSink::log(std::wstring_view text, std::wstring_view file, int level) {
  writeLine(L"log " + std::to_wstring(level) + L": " + std::wstring(file) + L": " + std::wstring(text));
}

BugReporter::BugReporter() : sink_(std::make_shared<StandardErrorSink>()) {}
BugReporter::~BugReporter() = default;

BugReporter& BugReporter::getInstance() {
  // Never destroyed: objects that outlive main may still report.
  static BugReporter& instance = *new BugReporter;
  return instance;
}

std::shared_ptr<ReportSink> BugReporter::sink() const {
  const std::lock_guard guard(lock_);
  return sink_;
}

void BugReporter::report(const KVRException& exception) { sink()->report(exception); }

void BugReporter::traceText(std::wstring_view text) { sink()->trace(text); }

void BugReporter::log(std::wstring_view text, std::wstring_view file, int level) { sink()->log(text, file, level); }

std::shared_ptr<ReportSink> BugReporter::setSink(std::shared_ptr<ReportSink> sink) {
  if (!sink) sink = std::make_shared<StandardErrorSink>();
  const std::lock_guard guard(lock_);
  return std::exchange(sink_, std::move(sink));
}

namespace {

void reportAny(const wchar_t* caughtBy) {
  try {
    throw;
  } catch (KVRException& exception) {
    exception.setCaughtBy(caughtBy, __LINE__);
    exception.report();
  } catch (const std::exception& exception) {
    KeystoneException(caughtBy, __LINE__, UTFEncoder::toWide(exception.what())).report();
  } catch (...) {
    KeystoneException(caughtBy, __LINE__, L"An exception of an unknown class.").report();
  }
}

}  // namespace

void reportCurrentException(const wchar_t* caughtBy) noexcept {
  try {
    reportAny(caughtBy);
  } catch (...) {
    // There is nobody left to tell.
  }
}

void Log::append(std::wstring_view text, std::wstring_view file, int level) {
  BugReporter::getInstance().log(text, file, level);
}

}  // namespace Tessel
