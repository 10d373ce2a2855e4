#pragma once
#include <herald/platform/keystone/Export.h>

#include <string>
#include <typeinfo>

namespace Tessel {

/// The name of a class without its namespace, such as "CreditInfo".
HERALD_API std::string classNameOf(const std::type_info& type);

}  // namespace Tessel
