#pragma once
#include <herald/platform/keystone/Export.h>

#include <string>

namespace Tessel {

/// The whole protocol as text: every message and every request by id, then every record that they reach by name, each
/// with its fields, wire types, counts and conditions. Printed from the layouts themselves.
HERALD_API std::string protocolCatalogue();

}  // namespace Tessel
