#pragma once
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/Export.h>

#include <cstddef>

namespace Tessel {

/// The id and the size of the body.
inline constexpr std::size_t FRAME_HEADER_SIZE = 4;

/// The longest body of a request, in bytes.
inline constexpr std::size_t MAX_BODY_SIZE = 32767;

/// Reports a body that is too long for its frame.
void reportBodyTooLong(std::size_t size);

/// Thrown by a body that cannot be written and has reported why, so that it is not reported again.
class UnwritableBody : public KeystoneException {
 public:
  UnwritableBody();
};

/// Takes a frame back off the stream unless it was completed.
class FrameGuard {
 public:
  explicit FrameGuard(ByteStream& out) : out_(out), size_(out.bytes().size()) {}
  FrameGuard(const FrameGuard&) = delete;
  FrameGuard& operator=(const FrameGuard&) = delete;
  ~FrameGuard() {
    if (!complete_) out_.truncate(size_);
  }

  bool complete() { return complete_ = true; }

 private:
  ByteStream& out_;
  std::size_t size_;
  bool complete_ = false;
};

}  // namespace Tessel
