// Prints for every decoding how often it asks the heap for memory, and for how many bytes, as CSV: name, allocations,
// bytes.

#include <bench/codecs/Operations.h>
#include <tests/support/AllocationCount.h>

#include <iostream>

int main() {
  return Bench::runMain([] {
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
  });
}
