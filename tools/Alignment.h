#pragma once
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace Tessel {

/// A run of items of two sequences: equal ones, as many on each side, or others, which may be none on one side.
struct AlignedRun {
  bool isEqual;
  std::size_t firstStart;
  std::size_t firstCount;
  std::size_t secondStart;
  std::size_t secondCount;
};

/// Aligns two sequences as a text diff aligns lines: with the fewest items that differ, in memory in proportion to
/// their length. Sequences that differ in more than some thousand places are aligned well rather than best.
std::vector<AlignedRun> align(std::span<const std::uint32_t> first, std::span<const std::uint32_t> second);

}  // namespace Tessel
