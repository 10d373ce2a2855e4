#include <herald/messages/info_objects/DiscardCardsInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

void DiscardCardsInfo::getDiscardedCards(TsArray<int>& cards) const {
  cards = TsArray<int>(cards_.begin(), cards_.end());
}

void DiscardCardsInfo::setDiscardedCards(const TsArray<int>& cards) {
  cards_.clear();
  for (const int card : cards) cards_.add(static_cast<std::int8_t>(card));
}

std::wstring DiscardCardsInfo::toDebugString() const { return L"[DiscardCardsInfo]"; }

}  // namespace Tessel
