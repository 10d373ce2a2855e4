#pragma once
#include <cstddef>
#include <vector>

namespace Tessel {

/// A first-in-first-out queue of pointers, which it does not own, in a ring that doubles when it is full.
template <class T>
class MessageQueue {
 public:
  int size() const { return static_cast<int>(size_); }

  /// When memory runs out, `std::bad_alloc` leaves the queue as it was.
  void push(T* message) {
    if (size_ == ring_.size()) grow();
    ring_[(first_ + size_) & (ring_.size() - 1)] = message;
    ++size_;
  }

  /// The oldest. The queue must not be empty.
  T* pop() {
    T* const message = ring_[first_];
    first_ = (first_ + 1) & (ring_.size() - 1);
    --size_;
    return message;
  }

 private:
  static constexpr std::size_t FIRST_CAPACITY = 16;  // a power of two, as every capacity

  void grow() {
    std::vector<T*> bigger(ring_.empty() ? FIRST_CAPACITY : 2 * ring_.size());
    for (std::size_t i = 0; i < size_; ++i) bigger[i] = ring_[(first_ + i) & (ring_.size() - 1)];
    ring_.swap(bigger);
    first_ = 0;
  }

  std::vector<T*> ring_;
  std::size_t first_ = 0;
  std::size_t size_ = 0;
};

}  // namespace Tessel
