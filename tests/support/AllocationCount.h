#pragma once
#include <cstddef>

namespace Tessel {

/// How often `operator new` has been called in this program so far, the library's calls included. On Windows the
/// library has an `operator new` of its own, which this does not see.
int allocationCount();
/// How many of them have not been given back.
int livingAllocations();
/// How many bytes they asked for, freed or not.
std::size_t allocatedBytes();

/// While it lives, this thread's calls of `operator new` throw `std::bad_alloc`.
class WithoutMemory {
 public:
  WithoutMemory();
  ~WithoutMemory();
  WithoutMemory(const WithoutMemory&) = delete;
  WithoutMemory& operator=(const WithoutMemory&) = delete;
};

}  // namespace Tessel
