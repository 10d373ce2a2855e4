#pragma once
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/Format.h>

#include <memory>
#include <mutex>
#include <string_view>

namespace Tessel {

/// Takes exceptions that are reported rather than thrown.
class HERALD_API BugReporterInterface {
 public:
  virtual ~BugReporterInterface();
  virtual void report(const KVRException& exception) = 0;
};

/// Where reports, traces and log lines end up. An application or a test installs its own with
/// `BugReporter::setSink`. Its operations may be called from several threads at once.
class HERALD_API ReportSink {
 public:
  virtual ~ReportSink();
  virtual void report(const KVRException& exception) = 0;
  virtual void trace(std::wstring_view text) = 0;
  virtual void log(std::wstring_view text, std::wstring_view file, int level) = 0;
};

/// Writes each report, trace and log line as one line of UTF-8 to standard error; line breaks within a text are
/// escaped.
class HERALD_API StandardErrorSink : public ReportSink {
 public:
  ~StandardErrorSink() override;
  void report(const KVRException& exception) override;
  void trace(std::wstring_view text) override;
  void log(std::wstring_view text, std::wstring_view file, int level) override;
};

/// The process-wide reporter. All operations are safe from any thread.
class HERALD_API BugReporter : public BugReporterInterface {
 public:
  ~BugReporter() override;
  static BugReporter& getInstance();

  void report(const KVRException& exception) override;

  /// The trace channel: a printf-style format and its arguments, checked when the call is compiled.
  template <class... Args>
  void trace(FormatString<std::type_identity_t<Args>...> format, const Args&... args) {
    traceText(formatText(format, args...));
  }
  void traceText(std::wstring_view text);
  void log(std::wstring_view text, std::wstring_view file, int level);

  /// Installs a sink and answers the one that it replaces, so that a caller can put that back. Null installs the
  /// default, which writes to standard error. A call already under way on another thread may still end in the old sink;
  /// the sink lives until the last such call has returned.
  std::shared_ptr<ReportSink> setSink(std::shared_ptr<ReportSink> sink);

 private:
  BugReporter();
  std::shared_ptr<ReportSink> sink() const;

  mutable std::mutex lock_;
  std::shared_ptr<ReportSink> sink_;
};

/// Reports the exception that is being handled, for code that goes on as if it had not been thrown. `caughtBy` is the
/// source file that caught it, without its extension. What the sink throws is dropped.
HERALD_API void reportCurrentException(const wchar_t* caughtBy) noexcept;

/// The log: a line of text, the source file that wrote it (without its extension), and a level from 0 (most urgent).
class HERALD_API Log {
 public:
  static void append(std::wstring_view text, std::wstring_view file, int level);
};

}  // namespace Tessel
