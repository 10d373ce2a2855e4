#pragma once
#include <herald/inspect/Schema.h>

#include <map>
#include <string_view>

// What the printers of the protocol share.

namespace Tessel {

using Bodies = std::map<std::string_view, const RecordSchema*>;

/// The bodies of messages or requests by class. They live in the schema.
Bodies bodiesOf(std::span<const MessageSchema> messages);

}  // namespace Tessel
