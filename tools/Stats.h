#pragma once
#include <string>

namespace Tessel {

class Diagnostics;
class Output;

/// Writes what a capture holds, class by class, and how fast its messages decode; answers whether the capture was
/// sound.
bool printStats(const std::string& file, Output& output, Diagnostics& diagnostics);

}  // namespace Tessel
