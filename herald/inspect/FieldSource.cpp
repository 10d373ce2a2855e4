#include <herald/inspect/FieldSource.h>

namespace Tessel {

FieldSource::~FieldSource() = default;

}  // namespace Tessel
