#include <herald/messages/info_objects/DealtCardsInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

DealtCardsInfo::DealtCardsInfo(DealtCardsInfoDealType dealType, CardsInfo cards)
    : dealType_(static_cast<std::int8_t>(dealType)), cards_(std::move(cards)) {}

const DealType& DealtCardsInfo::getDealType() const {
  return DealType::getDealType(static_cast<DealType::AllowedDealType>(dealType_));
}

std::wstring DealtCardsInfo::toDebugString() const {
  return formatText(L"[DealtCardsInfo: DealType%d, CardsInfo: %s]", dealType_, cards_);
}

}  // namespace Tessel
