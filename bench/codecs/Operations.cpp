#include <bench/codecs/Operations.h>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>

namespace Bench {

void requireEqual(const std::string& what, const Values& one, const Values& other) {
  const auto [in, out] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
  if (in == one.end() && out == other.end()) return;
  const auto shown = [](const Values& values, Values::const_iterator at) {
    return at == values.end() ? "nothing" : '"' + *at + '"';
  };
  throw std::runtime_error(what + " differs at value " + std::to_string(in - one.begin()) + ": " + shown(one, in)
                           + " and " + shown(other, out));
}

void runBenchmarks(const Operations& operations, int argc, char** argv) {
  for (const Operation& operation : operations)
    benchmark::RegisterBenchmark(operation.name.c_str(),
                                 [&operation](benchmark::State& state) { operation.time(state); });
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) throw std::invalid_argument("no such option");
  benchmark::RunSpecifiedBenchmarks();
}

int runMain(const std::function<void()>& work) try {
  work();
  return EXIT_SUCCESS;
} catch (const std::exception& failure) {
  std::cerr << "error: " << failure.what() << '\n';
  return EXIT_FAILURE;
}

#ifndef HERALD_BENCH_PROTOBUF
void addProtobuf(Operations&, const References&) {}
#endif

}  // namespace Bench
