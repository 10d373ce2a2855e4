#include "Chaos.h"

#include <algorithm>

namespace CardRoom {

Chaos::Fault Chaos::nextFault() {
  constexpr struct {
    Fault fault;
    int inTenThousand;
  } FAULTS[] = {{Fault::UNKNOWN_ID, 20}, {Fault::DAMAGE, 20}, {Fault::CUT, 10}, {Fault::SILENCE, 2}};
  int number = roll(10'000);
  for (const auto& [fault, inTenThousand] : FAULTS) {
    if (number < inTenThousand) return fault;
    number -= inTenThousand;
  }
  return Fault::NONE;
}

std::size_t Chaos::nextWrite(std::size_t available) {
  constexpr int LONGEST = 40;
  const bool isSplit = roll(3) == 0;
  return isSplit ? std::min(available, static_cast<std::size_t>(1 + roll(LONGEST))) : available;
}

std::chrono::microseconds Chaos::nextDelay() { return std::chrono::microseconds(roll(20) == 0 ? roll(5000) : 0); }

std::vector<std::uint8_t> Chaos::noise() {
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(roll(60)));
  std::ranges::generate(bytes, [this] { return static_cast<std::uint8_t>(roll(256)); });
  return bytes;
}

std::vector<std::uint8_t> Chaos::damaged(std::span<const std::uint8_t> body) {
  std::vector<std::uint8_t> bytes(body.begin(), body.end());
  if (bytes.empty()) return noise();
  const auto anyPlace = [&] { return static_cast<std::size_t>(roll(static_cast<int>(bytes.size()))); };
  if (roll(3) == 0) return bytes.resize(anyPlace()), bytes;
  for (int changes = 1 + roll(3); changes > 0; --changes) bytes[anyPlace()] ^= static_cast<std::uint8_t>(1 + roll(255));
  return bytes;
}

}  // namespace CardRoom
