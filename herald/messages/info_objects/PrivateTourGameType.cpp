#include <herald/messages/info_objects/InfoListOperations.h>
#include <herald/messages/info_objects/PrivateTourGameType.h>
#include <herald/messages/info_objects/PrivateTourListText.h>

namespace Tessel {

PrivateTourGameType::PrivateTourGameType(ByteStream& in) { PrivateTourGameType::read(in); }

std::wstring PrivateTourGameType::toDebugString() const {
  return formatText(L"[PrivateTourGameType: iId=%d, %s %s ]", gameType_, limit_, seats_);
}

std::wstring PrivateTourGameTypeList::toDebugString() const {
  return formatText(PRIVATE_TOUR_LIST_TEXT, L"PrivateTourGameTypeList");
}

template class InfoList<PrivateTourGameType>;

}  // namespace Tessel
