#pragma once
#include <atomic>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace Tessel {

/// A first-in-first-out queue of pointers, which it does not own. It takes memory only to grow and keeps it. One thread
/// at a time changes it.
template <class T>
class MessageQueue {
 public:
  /// A snapshot, safe from any thread at any time.
  bool isEmpty() const {
    const std::uint32_t popped = popped_.load(std::memory_order_acquire);
    return posted_.load(std::memory_order_acquire) == popped;
  }

  /// When memory runs out, `std::bad_alloc` leaves the queue as it was.
  void push(T* message) {
    const std::uint32_t number = posted();
    if (number - popped() == capacity_) grow();
    at(number) = message;
    posted_.store(number + 1, std::memory_order_release);
  }

  /// The oldest. The queue must not be empty.
  T* pop() {
    const std::uint32_t number = popped();
    T* const message = at(number);
    popped_.store(number + 1, std::memory_order_release);
    return message;
  }

  /// All of them, the oldest first. When memory runs out, `std::bad_alloc` leaves the queue as it was.
  std::vector<std::unique_ptr<T>> popAll() {
    const std::uint32_t end = posted(), mask = capacity_ - 1;
    T* const* const ring = ring_.get();
    std::vector<std::unique_ptr<T>> messages;
    messages.reserve(end - popped());
    for (std::uint32_t number = popped(); number != end; ++number) messages.emplace_back(ring[number & mask]);
    popped_.store(end, std::memory_order_release);
    return messages;
  }

 private:
  static constexpr std::uint32_t FIRST_CAPACITY = 16;

  std::uint32_t posted() const { return posted_.load(std::memory_order_relaxed); }
  std::uint32_t popped() const { return popped_.load(std::memory_order_relaxed); }
  T*& at(std::uint32_t number) { return ring_[number & (capacity_ - 1)]; }

  void grow() {
    const std::uint32_t capacity = capacity_ > 0 ? 2 * capacity_ : FIRST_CAPACITY;
    std::unique_ptr<T*[]> ring(new T*[capacity]);
    for (std::uint32_t number = popped(); number != posted(); ++number) ring[number & (capacity - 1)] = at(number);
    ring_ = std::move(ring);
    capacity_ = capacity;
  }

  // The capacity is a power of two, so that the numbers of messages may wrap around.
  std::unique_ptr<T*[]> ring_;
  std::uint32_t capacity_ = 0;
  std::atomic<std::uint32_t> popped_ = 0;
  std::atomic<std::uint32_t> posted_ = 0;
};

}  // namespace Tessel
