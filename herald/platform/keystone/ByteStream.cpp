#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>

#include <algorithm>
#include <string>

namespace Tessel {

namespace {

constexpr const wchar_t* FILE_NAME = L"platform/keystone/ByteStream";
constexpr std::size_t SMALLEST_CAPACITY = 64;

}  // namespace

ByteStream::ByteStream(const ByteStream& other) : ByteStream(other.bytes()) { position_ = other.position_; }

void ByteStream::grow(std::size_t count) {
  const std::size_t capacity = std::max({size_ + count, 2 * size_, SMALLEST_CAPACITY});
  std::unique_ptr<std::uint8_t[]> bytes(new std::uint8_t[capacity]);  // not filled with zeros first
  if (size_ > 0) std::memcpy(bytes.get(), begin_, size_);
  own_ = std::move(bytes);
  begin_ = own_.get();
  room_ = capacity - size_;
}

void ByteStream::throwPastEnd(std::size_t count) const {
  throw KeystoneException(FILE_NAME, __LINE__,
                          L"The stream ends: " + std::to_wstring(count) + L" bytes wanted at offset "
                              + std::to_wstring(position_) + L", " + std::to_wstring(unreadCount()) + L" left.");
}

void ByteStream::throwNoSuchIndex(int index) const {
  throw OutOfBoundsException(FILE_NAME, __LINE__, L"index", 0, GetSize() - 1, index);
}

}  // namespace Tessel
