#pragma once
#include <string>

#include "Capture.h"
#include "PacketFilter.h"

namespace Tessel {

struct ExportOptions {
  /// The file of the database.
  std::string database;
  /// Replaces the file when there is one.
  bool replaces = false;
  PacketFilter filter{};
  Secrets secrets = Secrets::MASKED;
};

/// Makes an SQLite database of captures: a row for each packet, for the message or request that it holds, and for each
/// item of their lists. Answers as `visitPackets` does; the database says so, too, and also when the export was
/// interrupted. Throws `DatabaseError`.
bool exportCaptures(const CaptureCall& call, const ExportOptions& options, Output& output, Diagnostics& diagnostics);

}  // namespace Tessel
