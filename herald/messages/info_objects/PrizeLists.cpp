#include <herald/messages/info_objects/PrizeLists.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring MonetaryPrizeInfo::toDebugString() const { return format(L"[MonetaryPrizeInfo: %s]", prize_); }

std::wstring MonetaryPrizeList::toDebugString() const {
  return format(L"[MonetaryPrizeList: NrElements=%d]", getNumberOfPrizes());
}

std::wstring TicketPrizeInfo::toDebugString() const { return format(L"[TicketPrizeInfo: %s]", description_); }

std::wstring TicketPrizeList::toDebugString() const {
  return format(L"[TicketPrizeList: NrElements=%d]", getNumberOfPrizes());
}

}  // namespace Tessel
