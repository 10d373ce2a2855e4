#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/SitDownReplyInfo.h>

namespace Tessel {

bool SitDownReplyInfo::isRefusedDueToMoney() const {
  return getStatus() >= SitDownStatus::FIRST_REFUSED_DUE_TO_MONEY
         && getStatus() <= SitDownStatus::LAST_REFUSED_DUE_TO_MONEY;
}

std::wstring SitDownReplyInfo::toDebugString() const {
  return format(L"[SitDownReplyInfo: Status: %d, %s]", status_, money_);
}

}  // namespace Tessel
