#include <herald/messages/info_objects/InfoListOperations.h>
#include <herald/messages/info_objects/PrivateTourListText.h>
#include <herald/messages/info_objects/PrivateTourMonetaryBuyInFeeType.h>

namespace Tessel {

PrivateTourMonetaryBuyInFeeType::PrivateTourMonetaryBuyInFeeType(ByteStream& in) {
  PrivateTourMonetaryBuyInFeeType::read(in);
}

std::wstring PrivateTourMonetaryBuyInFeeType::toDebugString() const {
  return formatText(L"[PrivateTourMonetaryBuyInFeeType: iMonetaryUnitId=%d, iBuyInFeeList=%s]", monetaryUnitId_,
                    buyInFees_);
}

std::wstring PrivateTourMonetaryBuyInFeeTypeList::toDebugString() const {
  return formatText(PRIVATE_TOUR_LIST_TEXT, L"PrivateTourMonetaryBuyInFeeTypeList");
}

template class InfoList<PrivateTourMonetaryBuyInFeeType>;

}  // namespace Tessel
