#include <herald/inspect/Inspectable.h>
#include <herald/platform/keystone/TypeName.h>

namespace Tessel {

std::string_view Inspectable::className() const { return classNameOf(*type_); }

}  // namespace Tessel
