#include <herald/messages/info_objects/RecordIndex.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

void checkRecordIndex(const wchar_t* source, int index, int count) {
  if (index < 0 || index >= count) throw OutOfBoundsException(source, __LINE__, L"i", 0, count - 1, index);
}

}  // namespace Tessel
