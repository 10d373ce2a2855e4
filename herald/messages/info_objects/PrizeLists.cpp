#include <herald/messages/info_objects/PrizeLists.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring MonetaryPrizeInfo::toDebugString() const { return formatText(L"[MonetaryPrizeInfo: %s]", prize_); }

std::wstring MonetaryPrizeList::toDebugString() const {
  return formatText(L"[MonetaryPrizeList: NrElements=%d]", getNumberOfPrizes());
}

std::wstring TicketPrizeInfo::toDebugString() const { return formatText(L"[TicketPrizeInfo: %s]", description_); }

std::wstring TicketPrizeList::toDebugString() const {
  return formatText(L"[TicketPrizeList: NrElements=%d]", getNumberOfPrizes());
}

}  // namespace Tessel
