#include "Deflater.h"

#include <new>
#include <utility>

namespace Tessel {

Deflater::Deflater() {
  if (deflateInit(&stream_, Z_DEFAULT_COMPRESSION) != Z_OK) throw std::bad_alloc();
}

std::vector<std::uint8_t> Deflater::finish() {
  run({}, Z_FINISH);
  return std::move(compressed_);
}

void Deflater::run(std::span<const std::uint8_t> bytes, int flush) {
  std::uint8_t room[16384];
  stream_.next_in = const_cast<std::uint8_t*>(bytes.data());
  stream_.avail_in = static_cast<uInt>(bytes.size());
  do {
    stream_.next_out = room;
    stream_.avail_out = sizeof(room);
    deflate(&stream_, flush);
    compressed_.insert(compressed_.end(), room, stream_.next_out);
  } while (stream_.avail_out == 0);
}

}  // namespace Tessel
