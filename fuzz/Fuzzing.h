#pragma once
// What the fuzz targets share; each of them includes it once.

#include <herald/platform/keystone/BugReporter.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace Tessel {

class Nowhere : public ReportSink {
 public:
  void report(const KVRException&) override {}
  void trace(std::wstring_view) override {}
  void log(std::wstring_view, std::wstring_view, int) override {}
};

inline void require(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", rule);
  std::abort();
}

/// Reports go nowhere from the start of the process.
inline const auto SINK_BEFORE = BugReporter::getInstance().setSink(std::make_shared<Nowhere>());

}  // namespace Tessel
