#pragma once
#include <herald/inspect/Inspectable.h>

#include <string>
#include <string_view>

#include "DecodedPacket.h"
#include "Terminal.h"

namespace Tessel {

/// Appends a packet for people: a heading, then its fields, one a line and indented. The file is left out when empty.
void appendPretty(const DecodedPacket& decoded, std::string_view file, Secrets secrets, const Colors& colors,
                  std::string& out);

}  // namespace Tessel
