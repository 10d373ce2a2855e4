#include "Alignment.h"

#include <algorithm>
#include <limits>

namespace Tessel {

namespace {

using Sequence = std::span<const std::uint32_t>;

// The search for the best alignment takes time with the square of the differences.
constexpr std::ptrdiff_t MOST_STEPS = 1'000;

struct Point {
  std::ptrdiff_t x;
  std::ptrdiff_t y;
};

// Divides the sequences at a point of a shortest way from one into the other, which is found from both ends at once
// (E. W. Myers, An O(ND) difference algorithm and its variations, 1986).
class Aligner {
 public:
  Aligner(Sequence first, Sequence second) : first_(first), second_(second) {
    const std::size_t diagonals = first.size() + second.size() + 3;
    forward_.resize(diagonals);
    backward_.resize(diagonals);
    offset_ = static_cast<std::ptrdiff_t>(second.size()) + 1;
  }

  std::vector<AlignedRun> align() {
    Box all{0, 0, static_cast<std::ptrdiff_t>(first_.size()), static_cast<std::ptrdiff_t>(second_.size())};
    std::vector<Box> toDo{all};
    while (!toDo.empty()) {
      Box box = toDo.back();
      toDo.pop_back();
      const Point start{box.left, box.top};
      while (box.left < box.right && box.top < box.bottom && isEqual(box.left, box.top)) ++box.left, ++box.top;
      add(true, start, {box.left, box.top});
      const Point end{box.right, box.bottom};
      while (box.left < box.right && box.top < box.bottom && isEqual(box.right - 1, box.bottom - 1))
        --box.right, --box.bottom;
      if (box.right != end.x) toDo.push_back({box.right, box.bottom, end.x, end.y});
      if (box.left == box.right || box.top == box.bottom) {
        add(false, {box.left, box.top}, {box.right, box.bottom});
        continue;
      }
      const Point middle = findMiddle(box);
      if ((middle.x == box.left && middle.y == box.top) || (middle.x == box.right && middle.y == box.bottom)) {
        add(false, {box.left, box.top}, {box.right, box.bottom});
        continue;
      }
      toDo.push_back({middle.x, middle.y, box.right, box.bottom});
      toDo.push_back({box.left, box.top, middle.x, middle.y});
    }
    return std::move(runs_);
  }

 private:
  struct Box {
    std::ptrdiff_t left;
    std::ptrdiff_t top;
    std::ptrdiff_t right;
    std::ptrdiff_t bottom;
  };

  bool isEqual(std::ptrdiff_t x, std::ptrdiff_t y) const {
    return first_[static_cast<std::size_t>(x)] == second_[static_cast<std::size_t>(y)];
  }
  std::ptrdiff_t& forward(std::ptrdiff_t diagonal) { return forward_[static_cast<std::size_t>(diagonal + offset_)]; }
  std::ptrdiff_t& backward(std::ptrdiff_t diagonal) { return backward_[static_cast<std::size_t>(diagonal + offset_)]; }

  // Diagonal k holds the points with x - y = k; the arrays keep the furthest x of each.
  Point findMiddle(const Box& box) {
    const std::ptrdiff_t start = box.left - box.top;
    const std::ptrdiff_t end = box.right - box.bottom;
    const bool isOdd = ((start - end) & 1) != 0;
    std::ptrdiff_t lowest = start, highest = start, lowestBack = end, highestBack = end;
    forward(start) = box.left;
    backward(end) = box.right;
    for (std::ptrdiff_t steps = 1;; ++steps) {
      widen(
          lowest, highest, box, [&](std::ptrdiff_t k) -> std::ptrdiff_t& { return forward(k); }, NONE_FORWARD);
      for (std::ptrdiff_t k = highest; k >= lowest; k -= 2) {
        std::ptrdiff_t x = std::max(forward(k - 1) + 1, forward(k + 1));
        while (x < box.right && x - k < box.bottom && isEqual(x, x - k)) ++x;
        forward(k) = x;
        if (isOdd && k >= lowestBack && k <= highestBack && backward(k) <= x) return {x, x - k};
      }
      widen(
          lowestBack, highestBack, box, [&](std::ptrdiff_t k) -> std::ptrdiff_t& { return backward(k); },
          NONE_BACKWARD);
      for (std::ptrdiff_t k = highestBack; k >= lowestBack; k -= 2) {
        std::ptrdiff_t x = std::min(backward(k - 1), backward(k + 1) - 1);
        while (x > box.left && x - k > box.top && isEqual(x - 1, x - k - 1)) --x;
        backward(k) = x;
        if (!isOdd && k >= lowest && k <= highest && forward(k) >= x) return {x, x - k};
      }
      if (steps == MOST_STEPS) return furthest(box, lowest, highest);
    }
  }

  // To the next diagonals on each side, next to which nothing has been reached, or back from those that would lie
  // outside of the box.
  template <class Reached>
  static void widen(std::ptrdiff_t& lowest, std::ptrdiff_t& highest, const Box& box, Reached reached,
                    std::ptrdiff_t none) {
    if (lowest > box.left - box.bottom)
      reached(--lowest - 1) = none;
    else
      ++lowest;
    if (highest < box.right - box.top)
      reached(++highest + 1) = none;
    else
      --highest;
  }

  Point furthest(const Box& box, std::ptrdiff_t lowest, std::ptrdiff_t highest) {
    Point best{box.left, box.top};
    for (std::ptrdiff_t k = lowest; k <= highest; k += 2) {
      const std::ptrdiff_t x = std::min({forward(k), box.right, box.bottom + k});
      if (x >= box.left && x - k >= box.top && x + x - k > best.x + best.y) best = {x, x - k};
    }
    return best;
  }

  void add(bool isEqual, Point from, Point to) {
    const auto firstCount = static_cast<std::size_t>(to.x - from.x);
    const auto secondCount = static_cast<std::size_t>(to.y - from.y);
    if (firstCount == 0 && secondCount == 0) return;
    if (!runs_.empty() && runs_.back().isEqual == isEqual) {
      runs_.back().firstCount += firstCount;
      runs_.back().secondCount += secondCount;
    } else {
      runs_.push_back(
          {isEqual, static_cast<std::size_t>(from.x), firstCount, static_cast<std::size_t>(from.y), secondCount});
    }
  }

  static constexpr std::ptrdiff_t NONE_FORWARD = -1;
  static constexpr std::ptrdiff_t NONE_BACKWARD = std::numeric_limits<std::ptrdiff_t>::max();

  Sequence first_;
  Sequence second_;
  std::vector<std::ptrdiff_t> forward_;
  std::vector<std::ptrdiff_t> backward_;
  std::ptrdiff_t offset_;
  std::vector<AlignedRun> runs_;
};

}  // namespace

std::vector<AlignedRun> align(Sequence first, Sequence second) { return Aligner(first, second).align(); }

}  // namespace Tessel
