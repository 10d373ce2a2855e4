#pragma once
#include <herald/platform/keystone/BugReporter.h>

namespace CardRoom {

/// Reports go to standard error; what was expected is not told.
class QuietSink : public Tessel::StandardErrorSink {
  void trace(std::wstring_view) override {}
  void log(std::wstring_view, std::wstring_view, int) override {}
};

}  // namespace CardRoom
