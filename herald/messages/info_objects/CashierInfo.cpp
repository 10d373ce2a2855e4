#include <herald/messages/info_objects/CashierInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring CashierInfo::toDebugString() const {
  return formatText(L"[CashierInfo: AccountBalance=%li, Min buy in=%li, Max buy in=%li]", getAccountBalance(),
                    getMinBuyIn(), getMaxBuyIn());
}

}  // namespace Tessel
