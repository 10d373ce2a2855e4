#include <herald/platform/keystone/UTFEncoder.h>
#include <herald/wire/MessageMemory.h>
#include <herald/wire/Text.h>

#include <bit>
#include <limits>
#include <new>

namespace Tessel {

constinit const std::array<Text::Words, Text::MAX_SHORT + 1> Text::MASKS = [] {
  std::array<Words, MAX_SHORT + 1> masks{};
  for (std::size_t size = 0; size <= MAX_SHORT; ++size) {
    std::array<std::uint8_t, sizeof(Words)> own{};
    for (std::size_t i = 0; i < size; ++i) own[i] = 0xFF;
    masks[size] = std::bit_cast<Words>(own);
  }
  return masks;
}();

std::wstring Text::getString() const { return UTFEncoder::toWide(getUTF8()); }

void Text::setString(std::wstring_view text) { assign(UTFEncoder::toUTF8(text)); }

void Text::take(std::string_view utf8, MessageMemory* memory, std::size_t bytesToCome) {
  if (utf8.size() > std::numeric_limits<std::uint32_t>::max()) throw std::bad_alloc();
  Text taken;
  if (utf8.size() <= MAX_SHORT) {
    std::memcpy(taken.bytes_.data(), utf8.data(), utf8.size());
    taken.setKind(static_cast<std::uint8_t>(utf8.size()));
  } else {
    void* const place = memory != nullptr ? memory->take(utf8.size(), bytesToCome) : ::operator new(utf8.size());
    const Long text{static_cast<char*>(place), static_cast<std::uint32_t>(utf8.size())};
    std::memcpy(text.bytes, utf8.data(), text.size);
    std::memcpy(taken.bytes_.data(), &text, sizeof(text));
    taken.setKind(memory != nullptr ? BORROWED : OWNED);
  }
  swap(taken);
}

void Text::release() noexcept { ::operator delete(longText().bytes); }

}  // namespace Tessel
