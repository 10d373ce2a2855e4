#include <herald/messages/info_objects/RecordIndex.h>
#include <herald/platform/keystone/Exceptions.h>

#include <limits>

namespace Tessel {

void checkRecordIndex(const wchar_t* source, int index, int count) {
  checkRecordIndex(source, index, static_cast<std::size_t>(count < 0 ? 0 : count), count);
}

void checkRecordIndex(const wchar_t* source, int index, std::size_t items, int count) {
  if (index < 0 || static_cast<std::size_t>(index) >= items)
    throw OutOfBoundsException(source, __LINE__, L"i", 0, count == std::numeric_limits<int>::min() ? count : count - 1,
                               index);
}

}  // namespace Tessel
