#pragma once
#include <string>

#include "Packet.h"

namespace Tessel {

class Diagnostics;
class Output;

enum class OutputFormat { LINES, JSON };

/// Writes one line per packet; answers whether the capture was sound.
bool decodeCapture(const std::string& file, OutputFormat format, Output& output, Diagnostics& diagnostics);

/// Writes the line of one body.
void decodeBody(int id, std::span<const std::uint8_t> body, OutputFormat format, Output& output,
                Diagnostics& diagnostics);

}  // namespace Tessel
