#pragma once
#include <herald/inspect/Schema.h>

#include <string>

namespace Tessel {

/// A dissector for Wireshark, in Lua: of captures of link type USER0.
std::string wiresharkSchema(const Schema& schema);

}  // namespace Tessel
