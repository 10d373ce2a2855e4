#include <tests/support/AllocationCount.h>

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::atomic<int> allocations = 0;
std::atomic<std::size_t> bytes = 0;

}  // namespace

int Tessel::allocationCount() { return allocations; }
std::size_t Tessel::allocatedBytes() { return bytes; }

void* operator new(std::size_t size) {
  ++allocations;
  bytes += size;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
