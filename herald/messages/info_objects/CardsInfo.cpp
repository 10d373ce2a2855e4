#include <herald/messages/info_objects/CardsInfo.h>
#include <herald/messages/info_objects/RecordIndex.h>
#include <herald/messages/info_objects/RecordOperations.h>

#include <algorithm>

namespace Tessel {

namespace {
constexpr const wchar_t* FILE_NAME = L"messages/info_objects/CardsInfo";
}

const CardInfo& CardsInfo::getCardInfo(int i) const {
  checkRecordIndex(FILE_NAME, i, getNrCards());
  return cards_[static_cast<std::size_t>(i)];
}

bool CardsInfo::isWinningCard(int i) const {
  checkRecordIndex(FILE_NAME, i, getNrCards());
  const auto card = static_cast<std::size_t>(i);
  return card < winningCards_.size() && winningCards_[card];
}

bool CardsInfo::isCommunityCards() const { return std::ranges::all_of(cards_, &CardInfo::isTableCard); }

bool CardsInfo::doesPlayerHaveCards(int seat) const {
  return std::ranges::find(cards_, seat, &CardInfo::getSeat) != cards_.end();
}

std::wstring CardsInfo::toDebugString() const {
  std::wstring text = formatText(L"[CardsInfo: has winning cards=%d, ", hasWinningCards_);
  for (const CardInfo& card : cards_) text += card.toDebugString();
  if (hasWinningCards_) {
    text += L", winning cards=";
    for (int i = 0; i < getNrCards(); ++i) text += isWinningCard(i) ? L'1' : L'0';
  }
  return text + L"]";
}

}  // namespace Tessel
