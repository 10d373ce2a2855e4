// Does one operation of bench_codecs as often as told and nothing else, for tools that count instructions.

#include <bench/codecs/Operations.h>

#include <cstdlib>
#include <exception>
#include <iostream>

int main(int argc, char** argv) try {
  if (argc != 3) throw std::invalid_argument("usage: bench_instructions OPERATION TIMES");
  Bench::Operations operations;
  Bench::addHerald(operations);
  for (const Bench::Operation& operation : operations) {
    if (operation.name != argv[1]) continue;
    operation.repeat(std::stol(argv[2]));
    return EXIT_SUCCESS;
  }
  throw std::invalid_argument("no operation of the name " + std::string(argv[1]));
} catch (const std::exception& failure) {
  std::cerr << "error: " << failure.what() << '\n';
  return EXIT_FAILURE;
}
