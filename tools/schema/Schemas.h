#pragma once
#include <herald/inspect/Schema.h>

#include <string>
#include <vector>

namespace Tessel {

/// A dissector for Wireshark, in Lua: of captures of link type USER0.
std::string wiresharkSchema(const Schema& schema);

/// A format for Kaitai Struct: of the payload of one packet of a capture.
std::string kaitaiSchema(const Schema& schema);

/// A JSON schema of the lines of `herald decode --json`.
std::string jsonSchema(const Schema& schema);

/// A page for browsers, which needs nothing beside it. The captures give the examples; throws `CaptureError` for one
/// that cannot be read, and `DamagedPacket`.
std::string protocolPage(const Schema& schema, const std::vector<std::string>& captures);

/// What `printSchema` can print the protocol in.
std::vector<std::string> schemaLanguages();

/// The protocol in one of these languages; those other than "page" do without captures.
std::string printSchema(const std::string& language, const std::vector<std::string>& captures);

}  // namespace Tessel
