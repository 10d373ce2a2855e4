#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/SubscriptionInfo.h>

namespace Tessel {

std::wstring SubscriptionInfo::toDebugString() const {
  return formatText(L"[SubscriptionInfo - iNodeId=%d, iNodeType=%d]", nodeId_, type_);
}

template class PlainRecord<SubscriptionInfo>;

}  // namespace Tessel
