#pragma once
#include <herald/platform/keystone/Export.h>

#include <cstdint>
#include <map>
#include <shared_mutex>
#include <string>
#include <vector>

namespace Tessel {

/// Says of which type a monetary unit is and in which currency it is shown.
struct MonetaryUnit {
  int id = -1;
  std::wstring monetaryTypeId;
  std::wstring currencyId;
};

struct HERALD_API MonetaryType {
  std::wstring id;
  std::wstring name;
  /// Bit 0: free, bit 1: refillable, bit 2: real money.
  int properties = 0;
  int sortingPriority = -1;

  bool isFree() const;
  bool isRefillable() const;
  bool isReal() const;

  bool operator==(const MonetaryType&) const = default;
};

struct HERALD_API Currency {
  std::wstring id;
  std::wstring prefix;
  std::wstring postfix;
  int cutOffAmount = -1;
  int sortingPriority = -1;

  /// The amount in decimal between prefix and postfix.
  std::wstring toString(std::int64_t amount) const;

  bool operator==(const Currency&) const = default;
};

/// What the process knows about monetary units. Empty until the monetary records of a server are put in. All operations
/// are safe from any thread.
class HERALD_API MoneyModel {
 public:
  static MoneyModel& getInstance();

  /// Replaces everything. Of several entries with one id the first counts.
  void replaceAll(const std::vector<MonetaryUnit>& units, const std::vector<MonetaryType>& types,
                  const std::vector<Currency>& currencies);

  /// False, with `out` unchanged, for a unit that is unknown or whose currency is.
  bool getCurrency(int monetaryUnitId, Currency& out) const;
  /// False, with `out` unchanged, for a unit that is unknown or whose type is.
  bool getMonetaryType(int monetaryUnitId, MonetaryType& out) const;

 private:
  MoneyModel();

  mutable std::shared_mutex lock_;
  std::map<int, MonetaryUnit> units_;
  std::map<std::wstring, MonetaryType> types_;
  std::map<std::wstring, Currency> currencies_;
};

}  // namespace Tessel
