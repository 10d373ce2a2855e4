#include <herald/messages/info_objects/InfoListOperations.h>
#include <herald/messages/info_objects/PrivateTourBuyInFeeType.h>
#include <herald/messages/info_objects/PrivateTourListText.h>

namespace Tessel {

PrivateTourBuyInFeeType::PrivateTourBuyInFeeType(ByteStream& in) { PrivateTourBuyInFeeType::read(in); }

std::wstring PrivateTourBuyInFeeType::toDebugString() const {
  return formatText(L"[PrivateTourBuyInFeeType: iId=%d, iBuyIn=%li, iFee=%li]", id_, getBuyIn(), getFee());
}

std::wstring PrivateTourBuyInFeeTypeList::toDebugString() const {
  return formatText(PRIVATE_TOUR_LIST_TEXT, L"PrivateTourBuyInFeeTypeList");
}

template class InfoList<PrivateTourBuyInFeeType>;

}  // namespace Tessel
