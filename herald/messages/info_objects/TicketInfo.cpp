#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TicketInfo.h>

namespace Tessel {

std::wstring TicketInfo::toDebugString() const {
  return formatText(L"[TicketInfo: Description=%s, BuyIn=%s, Fee=%s, IsRestricted=%d]", description_, buyIn_, fee_,
                    isRestricted_);
}

}  // namespace Tessel
