#include <herald/messages/info_objects/HandValueInfo.h>
#include <herald/messages/info_objects/RecordIndex.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

int HandValueInfo::getSpecifiedCard(int i) const {
  checkRecordIndex(L"messages/info_objects/HandValueInfo", i, getNumberOfSpecifiedCards());
  return specifiedCards_[static_cast<std::size_t>(i)];
}

std::wstring HandValueInfo::toDebugString() const {
  return formatText(L"[HandValueInfo: PlayerSeat=%d, HandType=%d, HandValue=%d]", playerSeat_, handType_, handValue_);
}

}  // namespace Tessel
