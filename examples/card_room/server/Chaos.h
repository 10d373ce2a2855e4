#pragma once
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <vector>

namespace CardRoom {

/// What goes wrong on purpose on one connection. One seed gives the same faults again.
class Chaos {
 public:
  enum class Fault {
    NONE,
    UNKNOWN_ID,  ///< A message comes in between whose id nobody knows.
    DAMAGE,      ///< The body is changed.
    CUT,         ///< The connection ends inside the message.
    SILENCE,     ///< Nothing is sent or read any more, and the connection stays open.
  };

  Chaos(std::uint32_t seed, int session) : random_(seed * 1'000'003 + static_cast<std::uint32_t>(session)) {}

  Fault nextFault();
  /// How many of so many bytes go into the next write, and how long it waits.
  std::size_t nextWrite(std::size_t available);
  std::chrono::microseconds nextDelay();

  int unknownId() { return 20'000 + roll(1000); }
  std::vector<std::uint8_t> noise();
  /// The bytes with one to three of them changed, or without the last ones.
  std::vector<std::uint8_t> damaged(std::span<const std::uint8_t> body);
  /// From 0 to `below` - 1.
  int roll(int below) { return static_cast<int>(random_() % static_cast<std::uint32_t>(below)); }

 private:
  std::mt19937 random_;
};

}  // namespace CardRoom
