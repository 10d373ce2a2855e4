#pragma once
#include <string>

#include "PacketFilter.h"
#include "Terminal.h"

namespace Tessel {

class Diagnostics;
class Output;

struct DiffOptions {
  PacketFilter filter{};
  Secrets secrets = Secrets::MASKED;
  ColorChoice color = ColorChoice::AUTO;
};

enum class DiffResult { SAME, DIFFERENT, UNSOUND };

/// Writes in which messages and requests two captures differ, whatever their times: those that only one of them has,
/// and of those of the same class in the same place the fields that differ. Holds both captures in memory.
DiffResult diffCaptures(const std::string& first, const std::string& second, const DiffOptions& options, Output& output,
                        Diagnostics& diagnostics);

}  // namespace Tessel
