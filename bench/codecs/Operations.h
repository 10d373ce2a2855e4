#pragma once
#include <benchmark/benchmark.h>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Bench {

/// Something to be measured: "what/message/who", such as "decode/GameState/herald".
struct Operation {
  std::string name;
  std::function<void(benchmark::State&)> time;
  std::function<void(long times)> repeat;
};

using Operations = std::vector<Operation>;

template <class Work>
void add(Operations& operations, const std::string& what, const std::string& message, const char* who, Work work) {
  operations.push_back({what + '/' + message + '/' + who,
                        [work](benchmark::State& state) mutable {
                          for (auto _ : state) work();
                        },
                        [work](long times) mutable {
                          while (times-- > 0) work();
                        }});
}

using Bytes = std::vector<std::uint8_t>;

/// The fields of a message in wire order: numbers and flags in decimal, texts, of a list its count and then its items.
using Values = std::vector<std::string>;

/// A message as Herald understands it, for others to be compared with.
struct Reference {
  Values values;
  /// Named as Herald names the fields; a body that is one record is that record.
  std::string json;
};

/// By the names of the messages.
using References = std::map<std::string, Reference>;

/// Throws an exception that names the first value in which they differ.
void requireEqual(const std::string& what, const Values& one, const Values& other);

/// Decoding and encoding by Herald and by the floor, and what Herald alone does with messages. What is compared has
/// been found equal before; otherwise this throws.
References addHerald(Operations& operations);

/// The same by protobuf. Does nothing where protobuf was not found.
void addProtobuf(Operations& operations, const References& references);

/// Measures the operations as the program's arguments say.
void runBenchmarks(const Operations& operations, int argc, char** argv);

/// The work of a program, whose exit code it answers; says why when it fails.
int runMain(const std::function<void()>& work);

}  // namespace Bench
