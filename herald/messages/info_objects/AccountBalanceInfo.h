#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/platform/keystone/List.h>

namespace Tessel {

/// What the player has on the accounts, one balance per account.
class HERALD_API AccountBalanceInfo : public ReadableRecord<AccountBalanceInfo> {
 public:
  AccountBalanceInfo() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit AccountBalanceInfo(ByteStream& in);

  int getAccountBalanceCount() const { return static_cast<int>(balances_.size()); }
  /// By position, not by monetary unit; a default `Money` for an index outside 0 to `getAccountBalanceCount()` - 1.
  Money getAccountBalance(int i) const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template countedOrNone<std::int8_t>("balances", self.balances_);
  }

 private:
  List<MoneyAmount> balances_;
};

}  // namespace Tessel
