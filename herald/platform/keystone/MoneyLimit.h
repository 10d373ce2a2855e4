#pragma once
#include <herald/platform/keystone/MoneyModel.h>

namespace Tessel {

/// The two limits of a game, such as its small and big bet, in one monetary unit.
class HERALD_API MoneyLimit {
 public:
  /// Zero to zero, without a monetary unit.
  MoneyLimit() = default;
  MoneyLimit(std::int64_t lowerLimit, std::int64_t upperLimit, int monetaryUnitId, Currency currency);

  std::int64_t getLowerLimit() const { return lowerLimit_; }
  std::int64_t getUpperLimit() const { return upperLimit_; }
  int getMonetaryUnitId() const { return monetaryUnitId_; }
  const Currency& getCurrency() const { return currency_; }

  /// Both limits in the currency, as "$1/$2".
  std::wstring toString() const;

  bool operator==(const MoneyLimit&) const = default;

 private:
  std::int64_t lowerLimit_ = 0;
  std::int64_t upperLimit_ = 0;
  int monetaryUnitId_ = -1;
  Currency currency_;
};

}  // namespace Tessel
