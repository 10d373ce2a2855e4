#include <herald/messages/info_objects/InfoListOperations.h>
#include <herald/messages/info_objects/PrivateTourListText.h>
#include <herald/messages/info_objects/PrivateTourSeatsPerTableType.h>

namespace Tessel {

PrivateTourSeatsPerTableType::PrivateTourSeatsPerTableType(ByteStream& in) { PrivateTourSeatsPerTableType::read(in); }

std::wstring PrivateTourSeatsPerTableType::toDebugString() const {
  return formatText(L"[PrivateTourSeatsPerTableType: iNumSeats=%d]", numSeats_);
}

std::wstring PrivateTourSeatsPerTableTypeList::toDebugString() const {
  return formatText(PRIVATE_TOUR_LIST_TEXT, L"PrivateTourSeatsPerTableTypeList");
}

template class InfoList<PrivateTourSeatsPerTableType>;

}  // namespace Tessel
