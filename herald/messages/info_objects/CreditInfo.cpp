#include <herald/messages/info_objects/CreditInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

CreditInfo::CreditInfo(int playerId, int seat, std::int64_t amount)
    : playerId_(playerId), seat_(static_cast<std::int8_t>(seat)), amount_(amount) {}

std::wstring CreditInfo::toDebugString() const {
  return formatText(L"[CreditInfo: id=%d, seat=%d, amount=%li]", playerId_, seat_, amount_.getAmount());
}

}  // namespace Tessel
