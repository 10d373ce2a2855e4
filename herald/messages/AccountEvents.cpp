#include <herald/messages/AccountEvents.h>
#include <herald/messages/MessageOperations.h>

namespace Tessel {

template <class Self>
std::wstring CashierMessage<Self>::toDebugString() const {
  return formatText(Self::TEXT, getAccountBalance(), getMinBuyIn(), getMaxBuyIn());
}

template class CashierMessage<ShowCashierOk>;
template class CashierMessage<ShowCashierFailedMoney>;

}  // namespace Tessel
