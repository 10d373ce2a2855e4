#pragma once
#include <cstdint>
#include <memory>
#include <utility>

namespace Tessel {

/// A first-in-first-out queue of pointers, which it does not own, in a ring that doubles when it is full.
template <class T>
class MessageQueue {
 public:
  int size() const { return static_cast<int>(posted_ - popped_); }

  /// When memory runs out, `std::bad_alloc` leaves the queue as it was.
  void push(T* message) {
    if (posted_ - popped_ == capacity_) grow();
    at(posted_) = message;
    ++posted_;
  }

  /// The oldest. The queue must not be empty.
  T* pop() { return at(popped_++); }

 private:
  static constexpr std::uint32_t FIRST_CAPACITY = 16;

  T*& at(std::uint32_t number) { return ring_[number & (capacity_ - 1)]; }

  void grow() {
    const std::uint32_t count = posted_ - popped_;
    const std::uint32_t capacity = capacity_ > 0 ? 2 * capacity_ : FIRST_CAPACITY;
    std::unique_ptr<T*[]> ring(new T*[capacity]);
    for (std::uint32_t i = 0; i < count; ++i) ring[i] = at(popped_ + i);
    ring_ = std::move(ring);
    capacity_ = capacity;
    popped_ = 0;
    posted_ = count;
  }

  // The capacity is a power of two, so that the numbers of messages may wrap around.
  std::unique_ptr<T*[]> ring_;
  std::uint32_t capacity_ = 0;
  std::uint32_t popped_ = 0;
  std::uint32_t posted_ = 0;
};

}  // namespace Tessel
