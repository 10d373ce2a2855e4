#include <herald/messages/info_objects/MonetaryUnitInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

MonetaryUnitInfo::MonetaryUnitInfo(ByteStream& in) { read(in); }

std::wstring MonetaryUnitInfo::toDebugString() const {
  return formatText(L"[MonetaryUnitInfo: Id=%d, MonetaryTypeId=%s, CurrencyId=%s]", id_, monetaryTypeId_, currencyId_);
}

template class PlainRecord<MonetaryUnitInfo>;

}  // namespace Tessel
