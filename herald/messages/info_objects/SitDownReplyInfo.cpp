#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/SitDownReplyInfo.h>

namespace Tessel {

std::wstring SitDownReplyInfo::toDebugString() const {
  return formatText(L"[SitDownReplyInfo: Status: %d, %s]", status_, money_);
}

}  // namespace Tessel
