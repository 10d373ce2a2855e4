#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TourRebuyNotification.h>
#include <herald/platform/keystone/StringUtils.h>

namespace Tessel {

std::wstring TourRebuyNotification::toDebugString() const {
  return formatText(L"[TourRebuyNotification: Duration=%s, IsAddon=%s, NrRebuysRemaining=%s]",
                    StringUtils::int64ToString(duration_), isAddon_, nrRebuysRemaining_);
}

}  // namespace Tessel
