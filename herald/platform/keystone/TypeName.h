#pragma once
#include <herald/platform/keystone/Export.h>

#include <string_view>
#include <typeinfo>

namespace Tessel {

/// The name of a class without its namespace, such as "CreditInfo". It is valid as long as the process.
HERALD_API std::string_view classNameOf(const std::type_info& type);

}  // namespace Tessel
