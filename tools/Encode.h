#pragma once
#include <string>
#include <vector>

namespace Tessel {

class Diagnostics;
class Output;

struct EncodeOptions {
  /// Where the capture goes; "-" is standard output. Empty for hexadecimal lines on standard output instead.
  std::string capture{};
};

/// Encodes lines of JSON, as decoding prints them or each a message, request or record with its fields. Complains about
/// the first line that cannot be encoded, at which it ends; answers whether there was none.
bool encodeFiles(const std::vector<std::string>& files, const EncodeOptions& options, Output& output,
                 Diagnostics& diagnostics);

}  // namespace Tessel
