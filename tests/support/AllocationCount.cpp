#include <tests/support/AllocationCount.h>

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::atomic<int> allocations = 0;
std::atomic<std::size_t> bytes = 0;
thread_local bool outOfMemory = false;

}  // namespace

int Tessel::allocationCount() { return allocations; }
std::size_t Tessel::allocatedBytes() { return bytes; }

Tessel::WithoutMemory::WithoutMemory() { outOfMemory = true; }
Tessel::WithoutMemory::~WithoutMemory() { outOfMemory = false; }

void* operator new(std::size_t size) {
  ++allocations;
  bytes += size;
  if (void* memory = outOfMemory ? nullptr : std::malloc(size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

// The sanitizers' own ones do not call those above.
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
