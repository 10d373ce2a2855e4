// Prints for every decoding how often it asks the heap for memory, and for how many bytes, in the form of
// a benchmark's CSV: name, allocations, bytes.

#include <bench/codecs/Operations.h>
#include <tests/support/AllocationCount.h>

#include <cstdlib>
#include <exception>
#include <iostream>

int main() try {
  Bench::Operations operations;
  Bench::addProtobuf(operations, Bench::addHerald(operations));
  for (const Bench::Operation& operation : operations) {
    if (!operation.name.starts_with("decode/")) continue;
    operation.repeat(1);  // whatever is made once and kept
    const int allocations = Tessel::allocationCount();
    const std::size_t bytes = Tessel::allocatedBytes();
    operation.repeat(1);
    std::cout << operation.name << ',' << Tessel::allocationCount() - allocations << ','
              << Tessel::allocatedBytes() - bytes << '\n';
  }
  return EXIT_SUCCESS;
} catch (const std::exception& failure) {
  std::cerr << "error: " << failure.what() << '\n';
  return EXIT_FAILURE;
}
