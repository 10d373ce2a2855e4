#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

MoneyInfo::MoneyInfo(const Money& money)
    : monetaryUnitId_(static_cast<std::int16_t>(money.getMonetaryUnitId())), amount_(money.getAmount()) {}

MoneyInfo::MoneyInfo(ByteStream& in) { MoneyInfo::read(in); }

std::wstring MoneyInfo::toDebugString() const { return format(L"[MoneyInfo: %s ]", getMoney().toString()); }

}  // namespace Tessel
