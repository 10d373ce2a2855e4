#pragma once
#include <string>

#include "PacketFilter.h"

namespace Tessel {

class Diagnostics;
class Output;

struct ReportOptions {
  /// The page to write; "-" is standard output.
  std::string page;
  PacketFilter filter{};
  Secrets secrets = Secrets::MASKED;
};

/// Writes one page that shows a capture in a browser and needs nothing beside itself; answers whether the capture was
/// sound. A page says so when its capture was not, and is written unless no packet could be read. Throws
/// `std::runtime_error` for a page that cannot be written.
bool writeReport(const std::string& capture, const ReportOptions& options, Output& output, Diagnostics& diagnostics);

}  // namespace Tessel
