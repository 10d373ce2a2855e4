#pragma once
#include <herald/platform/keystone/Export.h>

namespace Tessel {

/// Throws `OutOfBoundsException`, naming the source and the bounds 0 and count - 1, for an index outside them.
HERALD_API void checkRecordIndex(const wchar_t* source, int index, int count);

}  // namespace Tessel
