#include <herald/wire/MessageMemory.h>

#include <algorithm>
#include <new>

namespace Tessel {

// A chunk holds what is asked for now and what is guessed to come, twice the bytes on the wire; a wrong guess wastes
// little.
void MessageMemory::addChunk(std::size_t size, std::size_t bytesToCome) {
  constexpr std::size_t MOST_IN_ADVANCE = 2048;
  const std::size_t held = sizeof(Chunk) + size + std::min(2 * bytesToCome, MOST_IN_ADVANCE);
  auto* const memory = static_cast<std::byte*>(::operator new(held));
  last_ = new (memory) Chunk{last_, memory + sizeof(Chunk), memory + held};
}

void MessageMemory::release() noexcept {
  while (last_ != nullptr) ::operator delete(std::exchange(last_, last_->before));
}

}  // namespace Tessel
