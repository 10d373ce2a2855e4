#include <herald/messages/info_objects/CurrencyInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

CurrencyInfo::CurrencyInfo(ByteStream& in) { read(in); }

std::wstring CurrencyInfo::toDebugString() const {
  return formatText(L"[CurrencyInfo: Id=%s, Prefix=%s, Postfix=%s, CutOffAmount:%d, SortingPriority:%d]", id_, prefix_,
                    postfix_, cutOffAmount_, sortingPriority_);
}

template class PlainRecord<CurrencyInfo>;

}  // namespace Tessel
