#pragma once
#include "Capture.h"
#include "PacketFilter.h"

namespace Tessel {

class Diagnostics;
class Output;

/// Writes what captures hold, class by class, and how fast their messages decode; answers whether the captures were
/// sound.
bool printStats(const CaptureCall& call, const PacketFilter& filter, Output& output, Diagnostics& diagnostics);

}  // namespace Tessel
