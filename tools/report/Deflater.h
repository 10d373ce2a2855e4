#pragma once
#include <zlib.h>

#include <cstdint>
#include <span>
#include <vector>

namespace Tessel {

/// Compresses bytes as they come, in the format of zlib.
class Deflater {
 public:
  /// Throws `std::bad_alloc`.
  Deflater();
  ~Deflater() { deflateEnd(&stream_); }
  Deflater(const Deflater&) = delete;
  Deflater& operator=(const Deflater&) = delete;

  void append(std::span<const std::uint8_t> bytes) { run(bytes, Z_NO_FLUSH); }
  /// All that was appended, compressed. Nothing can be appended afterwards.
  std::vector<std::uint8_t> finish();

 private:
  void run(std::span<const std::uint8_t> bytes, int flush);

  z_stream stream_{};
  std::vector<std::uint8_t> compressed_;
};

}  // namespace Tessel
