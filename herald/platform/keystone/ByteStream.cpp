#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>

#include <algorithm>
#include <string>

namespace Tessel {

namespace {
constexpr const wchar_t* FILE_NAME = L"platform/keystone/ByteStream";
}

void ByteStream::SetAt(int index, char value) {
  if (index < 0 || index >= GetSize())
    throw OutOfBoundsException(FILE_NAME, __LINE__, L"index", 0, GetSize() - 1, index);
  bytes_[static_cast<std::size_t>(index)] = static_cast<std::uint8_t>(value);
}

void ByteStream::truncate(std::size_t size) {
  if (size >= bytes_.size()) return;
  bytes_.resize(size);
  position_ = std::min(position_, size);
}

void ByteStream::throwPastEnd(std::size_t count) const {
  throw KeystoneException(FILE_NAME, __LINE__,
                          L"The stream ends: " + std::to_wstring(count) + L" bytes wanted at offset "
                              + std::to_wstring(position_) + L", " + std::to_wstring(unreadCount()) + L" left.");
}

}  // namespace Tessel
