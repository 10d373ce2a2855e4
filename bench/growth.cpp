// Decoding of lists and trees of more and more items: "growth/Tree/1000/herald".

#include <bench/codecs/FloorValues.h>
#include <bench/codecs/HeraldCodec.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <algorithm>
#include <memory>

namespace {

using namespace Bench;
using namespace Tessel;

Bytes bytesOf(const ByteStream& stream) { return {stream.bytes().begin(), stream.bytes().end()}; }

std::string nameOf(const char* kind, int number) { return kind + std::to_string(1000 + number % 9000); }

Bytes gameList(int count) {
  ByteStream out;
  out << std::int16_t{17} << static_cast<std::int16_t>(count);
  for (int id = 0; id < count; ++id) {
    out << id;
    UTFEncoder::encodeToTsUTF8(nameOf("Andromeda ", id), out);
    for (int i = 0; i < 4; ++i) out << std::int16_t{2};
    out << std::int32_t{2000} << std::int32_t{1} << std::int8_t{0} << std::int8_t{1};
    out << std::int64_t{100} << std::int64_t{200} << std::int8_t{3};
  }
  return bytesOf(out);
}

// A node and those below it, `count` together, shared out evenly among up to ten children.
void writeTree(ByteStream& out, int count) {
  constexpr int CHILDREN = 10;
  const int below = count - 1, children = std::min(below, CHILDREN);
  out << static_cast<std::int16_t>(count) << std::int16_t{-1};
  UTFEncoder::encodeToTsUTF8(nameOf("Sunday ", count), out);
  out << std::int16_t{2000} << std::int8_t{1} << std::int8_t{0} << static_cast<std::int8_t>(children);
  for (int child = 0; child < children; ++child) writeTree(out, below / children + (child < below % children ? 1 : 0));
}

Bytes tree(int count) {
  ByteStream out;
  writeTree(out, count);
  return bytesOf(out);
}

template <class FloorMessage>
void addSizes(Operations& operations, const std::string& kind, int id, Bytes (*make)(int),
              const std::vector<int>& sizes) {
  for (const int size : sizes) {
    const auto body = std::make_shared<const Bytes>(make(size));
    const auto message = decodeChecked(id, *body);
    // Beyond this the bodies have more of the same.
    if (size <= 10'000)
      requireEqual(kind + ", Herald and the floor,", valuesOf(*message), valuesOfFloor<FloorMessage>(*body));
    const std::string name = kind + '/' + std::to_string(size);
    add(operations, "growth", name, "herald", [id, body] { benchmark::DoNotOptimize(decode(id, *body)); });
    add(operations, "growth", name, "floor", [body] { benchmark::DoNotOptimize(Floor::read<FloorMessage>(*body)); });
  }
}

}  // namespace

int main(int argc, char** argv) {
  return runMain([&] {
    Operations operations;
    addSizes<Floor::GameList>(operations, "GameList", -9, gameList, {10, 100, 1000, 10'000, 30'000});
    addSizes<Floor::TreeNode>(operations, "Tree", -64, tree, {10, 100, 1000, 10'000, 100'000, 1'000'000});
    runBenchmarks(operations, argc, argv);
  });
}
