// Decoding, encoding and what else is done with messages: Herald beside the floor and, where it was found, protobuf.

#include <bench/codecs/Operations.h>

int main(int argc, char** argv) {
  return Bench::runMain([&] {
    Bench::Operations operations;
    Bench::addProtobuf(operations, Bench::addHerald(operations));
    Bench::runBenchmarks(operations, argc, argv);
  });
}
