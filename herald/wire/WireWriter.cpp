#include <herald/platform/keystone/Exceptions.h>
#include <herald/wire/WireWriter.h>

#include <string>

namespace Tessel {

void reportUnwritable(const Text& text) {
  try {
    ByteStream nowhere;
    UTFEncoder::encodeToTsUTF8(text.getUTF8(), nowhere);
  } catch (const KeystoneException& failure) {
    failure.report();
  }
}

void reportListTooLong(std::int64_t count) {
  KeystoneException(L"wire/WireWriter", __LINE__,
                    L"A list of " + std::to_wstring(count) + L" items is too long for its count.")
      .report();
}

}  // namespace Tessel
