#pragma once
#include <herald/platform/keystone/Export.h>

#include <cstddef>
#include <utility>

namespace Tessel {

/// Memory that a message owns for what it read: the items of its lists, its long texts, its trees. It is taken in a few
/// chunks, and all of it is given back at once when the message is destroyed, on whatever thread that happens.
///
/// - Only the first read of a message uses it. A message that is read into again, and a record that is read by hand,
///   take memory of their own, piece by piece.
/// - A copy of a message, `clone`, and a record that an accessor hands out by value own their memory: they outlive the
///   message.
/// - A message that is moved takes its memory along. Moving into a message swaps: what the target held goes with the
///   source.
/// - What a message hands out by reference lives in the message, as ever.
class HERALD_API MessageMemory {
 public:
  static constexpr std::size_t ALIGNMENT = 8;

  MessageMemory() = default;
  MessageMemory(const MessageMemory&) noexcept {}
  MessageMemory(MessageMemory&& other) noexcept : last_(std::exchange(other.last_, nullptr)) {}
  // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): nothing is assigned
  MessageMemory& operator=(const MessageMemory&) noexcept { return *this; }
  MessageMemory& operator=(MessageMemory&& other) noexcept {
    std::swap(last_, other.last_);
    return *this;
  }
  ~MessageMemory() {
    if (last_ != nullptr) release();
  }

  /// Whether none has been taken so far.
  bool isUnused() const { return last_ == nullptr; }

  /// Uninitialised memory, aligned to `ALIGNMENT` bytes. `bytesToCome` are unread: the more they
  /// are, the more memory will be wanted.
  void* take(std::size_t size, std::size_t bytesToCome) {
    size = (size + ALIGNMENT - 1) & ~(ALIGNMENT - 1);
    if (last_ == nullptr || size > static_cast<std::size_t>(last_->end - last_->free)) addChunk(size, bytesToCome);
    return std::exchange(last_->free, last_->free + size);
  }

 private:
  struct Chunk {
    Chunk* before;
    std::byte* free;
    std::byte* end;
  };

  void addChunk(std::size_t size, std::size_t bytesToCome);
  void release() noexcept;

  Chunk* last_ = nullptr;
};

}  // namespace Tessel
