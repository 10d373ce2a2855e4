#pragma once
#include <herald/platform/keystone/Export.h>

#include <cstdint>
#include <string>

namespace Tessel {

/// A whole amount in a monetary unit. The unit's currency is looked up in `MoneyModel` when a text is asked for.
class HERALD_API Money {
 public:
  /// Zero, without a monetary unit.
  constexpr Money() = default;
  constexpr Money(std::int64_t amount, int monetaryUnitId) : amount_(amount), monetaryUnitId_(monetaryUnitId) {}

  /// In the smallest units of the monetary unit's currency, or in chips.
  constexpr std::int64_t getAmount() const { return amount_; }
  constexpr int getMonetaryUnitId() const { return monetaryUnitId_; }

  /// Units are numbered from 0. Whether `MoneyModel` knows the unit is another question.
  constexpr bool hasValidMonetaryUnit() const { return monetaryUnitId_ >= 0; }

  /// The amount in decimal, inside the prefix and postfix of the unit's currency where `MoneyModel` knows it.
  std::wstring toString() const;

  /// A sum beyond 64 bits stays at the largest (smallest) amount. Throws `KeystoneException`, and changes nothing, when
  /// the monetary units differ.
  Money& operator+=(const Money& other);

  bool operator==(const Money&) const = default;

 private:
  std::int64_t amount_ = 0;
  int monetaryUnitId_ = -1;
};

}  // namespace Tessel
