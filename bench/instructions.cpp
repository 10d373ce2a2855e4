// Does one operation of bench_codecs as often as told and nothing else, for tools that count instructions.

#include <bench/codecs/Operations.h>

#include <algorithm>
#include <stdexcept>

int main(int argc, char** argv) {
  return Bench::runMain([&] {
    if (argc != 3) throw std::invalid_argument("usage: bench_instructions OPERATION TIMES");
    Bench::Operations operations;
    Bench::addHerald(operations);
    const auto found = std::ranges::find(operations, argv[1], &Bench::Operation::name);
    if (found == operations.end()) throw std::invalid_argument("no operation of the name " + std::string(argv[1]));
    found->repeat(std::stol(argv[2]));
  });
}
