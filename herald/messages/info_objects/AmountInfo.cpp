#include <herald/messages/info_objects/AmountInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

AmountInfo::AmountInfo(ByteStream& in) { AmountInfo::read(in); }

std::wstring Amount::toDebugString() const { return formatText(L"[AmountInfo: amount=%li]", amount_); }

std::wstring AmountInfo::toDebugString() const { return amount_.toDebugString(); }

}  // namespace Tessel
