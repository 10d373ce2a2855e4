#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/AccountBalanceInfo.h>
#include <herald/messages/info_objects/CashierInfo.h>
#include <herald/messages/info_objects/MonetaryInfo.h>
#include <herald/messages/info_objects/MoneyInfo.h>

#include <cstdint>

// The cashier, money and accounts.

namespace Tessel {

/// What the cashier says of a player. Self::TEXT is the debug format of the three amounts.
template <class Self>
class HERALD_API CashierMessage : public WireMessage<Self> {
 public:
  std::int64_t getAccountBalance() const { return cashier_.getAccountBalance(); }
  std::int64_t getMinBuyIn() const { return cashier_.getMinBuyIn(); }
  std::int64_t getMaxBuyIn() const { return cashier_.getMaxBuyIn(); }

  std::wstring toDebugString() const override;

  template <class Message, class Fields>
  static void wire(Message& self, Fields& fields) {
    fields("body", self.cashier_);
  }

 private:
  CashierInfo cashier_;
};

class HERALD_API ShowCashierOk : public CashierMessage<ShowCashierOk> {
 public:
  static constexpr auto TEXT = L"[ShowCashierOk: AccountBalance=%li, Min buy in=%li, Max buy in=%li]";
};

/// The player has too little money for the table.
class HERALD_API ShowCashierFailedMoney : public CashierMessage<ShowCashierFailedMoney> {
 public:
  static constexpr auto TEXT = L"[ShowCashierFailedMoney: AccountBalance=%li, Min buy in=%li, Max buy in=%li]";
};

class HERALD_API ShowCashierFailedSystem : public EmptyMessage<ShowCashierFailedSystem> {
 public:
  static constexpr auto TEXT = L"[ShowCashierFailedSystem]";
};

/// The monetary units of the server. A client hands them to the money model:
///   message.getMonetaryInfo().applyTo(MoneyModel::getInstance());
class HERALD_API MonetaryInfoMsg : public RecordMessage<MonetaryInfoMsg, MonetaryInfo, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[MonetaryInfoMsg: %s]";
  const MonetaryInfo& getMonetaryInfo() const { return body(); }
};

/// All balances.
class HERALD_API AccountBalanceInfoMsg : public RecordMessage<AccountBalanceInfoMsg, AccountBalanceInfo> {
 public:
  static constexpr auto TEXT = L"[AccountBalanceInfoMsg:]";
  int getAccountBalanceCount() const { return body().getAccountBalanceCount(); }
  /// A default `Money` for an index outside 0 to `getAccountBalanceCount()` - 1.
  Money getAccountBalance(int i) const { return body().getAccountBalance(i); }
};

/// By how much the balance in one monetary unit changes.
class HERALD_API AccountBalanceInfoUpdateRelative : public RecordMessage<AccountBalanceInfoUpdateRelative, MoneyInfo> {
 public:
  static constexpr auto TEXT = L"[AccountBalanceInfoUpdateRelative:]";
  Money getAccountBalance() const { return body().getMoney(); }
};

/// The new balance in one monetary unit.
class HERALD_API AccountBalanceInfoUpdateAbsolute : public RecordMessage<AccountBalanceInfoUpdateAbsolute, MoneyInfo> {
 public:
  static constexpr auto TEXT = L"[AccountBalanceInfoUpdateAbsolute:]";
  Money getAccountBalance() const { return body().getMoney(); }
};

}  // namespace Tessel
