// Decoding, encoding and what else is done with messages: Herald beside the floor and, where it was found, protobuf.

#include <bench/codecs/Operations.h>

#include <cstdlib>
#include <exception>
#include <iostream>

int main(int argc, char** argv) try {
  Bench::Operations operations;
  Bench::addProtobuf(operations, Bench::addHerald(operations));
  Bench::addGrowth(operations);
  for (const Bench::Operation& operation : operations)
    benchmark::RegisterBenchmark(operation.name.c_str(), operation.time);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  benchmark::RunSpecifiedBenchmarks();
  return EXIT_SUCCESS;
} catch (const std::exception& failure) {
  std::cerr << "error: " << failure.what() << '\n';
  return EXIT_FAILURE;
}
