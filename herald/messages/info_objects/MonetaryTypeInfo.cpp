#include <herald/messages/info_objects/MonetaryTypeInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

MonetaryTypeInfo::MonetaryTypeInfo(ByteStream& in) { read(in); }

std::wstring MonetaryTypeInfo::toDebugString() const {
  return formatText(L"[MonetaryTypeInfo: Id=%s, Name=%s, Properties=%d, SortingPriority:%d]", id_, name_, properties_,
                    sortingPriority_);
}

template class PlainRecord<MonetaryTypeInfo>;

}  // namespace Tessel
