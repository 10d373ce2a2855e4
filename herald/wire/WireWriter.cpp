#include <herald/platform/keystone/Exceptions.h>
#include <herald/wire/WireWriter.h>

#include <string>

namespace Tessel {

void reportListTooLong(std::int64_t count) {
  KeystoneException(L"wire/WireWriter", __LINE__,
                    L"A list of " + std::to_wstring(count) + L" items is too long for its count.")
      .report();
}

}  // namespace Tessel
