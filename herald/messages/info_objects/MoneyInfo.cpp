#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring MoneyAmount::toDebugString() const { return formatText(L"[MoneyInfo: %s ]", getMoney().toString()); }

MoneyInfo::MoneyInfo(const Money& money) : value_(money) {}

MoneyInfo::MoneyInfo(ByteStream& in) { MoneyInfo::read(in); }

std::wstring MoneyInfo::toDebugString() const { return value_.toDebugString(); }

}  // namespace Tessel
