#pragma once
#include <herald/inspect/Inspectable.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Capture.h"
#include "PacketFilter.h"
#include "Terminal.h"

namespace Tessel {

class Diagnostics;
class Output;

enum class OutputFormat { LINES, JSON, PRETTY };

/// What `--columns` knows, separated by commas.
std::string columnNames();

struct DecodeOptions {
  OutputFormat format = OutputFormat::LINES;
  /// Of LINES, by their names.
  std::vector<std::string> columns{};
  ColorChoice color = ColorChoice::AUTO;
  Secrets secrets = Secrets::MASKED;
  PacketFilter filter{};
};

/// Writes the messages and requests of captures; answers whether the captures were sound. Throws `UsageError` for a
/// column that does not exist.
bool decodeCaptures(const CaptureCall& call, const DecodeOptions& options, Output& output, Diagnostics& diagnostics);

/// The same for one body from the command line. Without a direction the id of a message comes before that of a request.
void decodeBody(int id, std::span<const std::uint8_t> body, const DecodeOptions& options, Output& output,
                Diagnostics& diagnostics);

}  // namespace Tessel
