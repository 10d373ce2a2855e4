#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TourRebuyQuery.h>

namespace Tessel {

// The cost stands before the chips here, unlike on the wire.
std::wstring TourRebuyQuery::toDebugString() const {
  return formatText(L"[TourRebuyQuery: TourId=%s, Cost=%s, Chips=%s, IsAddon=%s]", tourId_, cost_, chips_, isAddon_);
}

}  // namespace Tessel
