#include <tests/support/AllocationCount.h>

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::atomic<int> allocations = 0;
std::atomic<int> living = 0;
std::atomic<std::size_t> bytes = 0;
thread_local bool outOfMemory = false;

}  // namespace

int Tessel::allocationCount() { return allocations; }
int Tessel::livingAllocations() { return living; }
std::size_t Tessel::allocatedBytes() { return bytes; }

Tessel::WithoutMemory::WithoutMemory() { outOfMemory = true; }
Tessel::WithoutMemory::~WithoutMemory() { outOfMemory = false; }

void* operator new(std::size_t size) {
  ++allocations;
  bytes += size;
  void* const memory = outOfMemory ? nullptr : std::malloc(size);
  if (memory == nullptr) throw std::bad_alloc();
  ++living;
  return memory;
}

void operator delete(void* memory) noexcept {
  if (memory == nullptr) return;
  --living;
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

// The sanitizers' own ones do not call those above.
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete[](void* memory) noexcept { operator delete(memory); }
void operator delete[](void* memory, std::size_t) noexcept { operator delete(memory); }
