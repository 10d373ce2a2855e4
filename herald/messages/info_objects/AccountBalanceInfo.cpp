#include <herald/messages/info_objects/AccountBalanceInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

AccountBalanceInfo::AccountBalanceInfo(ByteStream& in) { AccountBalanceInfo::read(in); }

Money AccountBalanceInfo::getAccountBalance(int i) const {
  return i >= 0 && i < getAccountBalanceCount() ? balances_[static_cast<std::size_t>(i)].getMoney() : Money();
}

std::wstring AccountBalanceInfo::toDebugString() const {
  return L"[AccountBalanceInfo:" + joinDebugTexts(balances_) + L"]";
}

}  // namespace Tessel
