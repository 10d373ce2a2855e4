#pragma once
#include <herald/platform/keystone/Export.h>

#include <cstddef>

namespace Tessel {

/// Throws `OutOfBoundsException`, naming the source and the bounds 0 and count - 1, for an index outside them.
HERALD_API void checkRecordIndex(const wchar_t* source, int index, int count);

/// The same for a list whose count is kept as it came: the exception names that count, also where a failed read has
/// left fewer items than it says.
HERALD_API void checkRecordIndex(const wchar_t* source, int index, std::size_t items, int count);

}  // namespace Tessel
