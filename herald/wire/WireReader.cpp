#include <herald/platform/keystone/Exceptions.h>
#include <herald/wire/WireReader.h>

#include <string>

namespace Tessel {

bool WireReader::readText(Text& text) {
  try {
    std::string utf8;
    UTFEncoder::decodeFromTsUTF8(in_, utf8);
    text.take(utf8, nullptr, 0);
    return true;
  } catch (const KeystoneException& failure) {
    failure.report();
    return false;
  }
}

void throwInfoObjectFailed() {
  throw KeystoneException(L"messages/info_objects/ObjectInfo", __LINE__, L"Failed to read info object.");
}

void throwCountPastEnd(std::int64_t count, std::size_t unread) {
  throw KeystoneException(
      L"wire/WireReader", __LINE__,
      L"A list of " + std::to_wstring(count) + L" items cannot be in " + std::to_wstring(unread) + L" bytes.");
}

void throwNegativeCount(std::int64_t count) { throw std::invalid_argument("negative count: " + std::to_string(count)); }

}  // namespace Tessel
