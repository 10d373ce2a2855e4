#include <herald/messages/info_objects/ChangeCardsInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring ChangeCardsInfo::toDebugString() const {
  return formatText(L"[ChangeCardsInfo: Seat=%d, TimeLeft=%d, TotalTime=%d]", seat_, timeLeft_, totalTime_);
}

}  // namespace Tessel
