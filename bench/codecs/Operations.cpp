#include <bench/codecs/Operations.h>

#include <algorithm>
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

#ifndef HERALD_BENCH_PROTOBUF
void addProtobuf(Operations&, const References&) {}
#endif

}  // namespace Bench
