#include <herald/messages/info_objects/InfoListOperations.h>
#include <herald/messages/info_objects/PrivateTourListText.h>
#include <herald/messages/info_objects/PrivateTourTimeIntervalType.h>

namespace Tessel {

PrivateTourTimeIntervalType::PrivateTourTimeIntervalType(ByteStream& in) { PrivateTourTimeIntervalType::read(in); }

std::wstring PrivateTourTimeIntervalType::toDebugString() const {
  return formatText(L"[PrivateTourTimeIntervalType: iStartTime=%d, iEndTime=%d]", startTime_, endTime_);
}

std::wstring PrivateTourTimeIntervalTypeList::toDebugString() const {
  return formatText(PRIVATE_TOUR_LIST_TEXT, L"PrivateTourTimeIntervalTypeList");
}

template class InfoList<PrivateTourTimeIntervalType>;

}  // namespace Tessel
