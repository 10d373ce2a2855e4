#include <herald/platform/keystone/BitMasking.h>
#include <herald/platform/keystone/MoneyModel.h>
#include <herald/platform/keystone/StringUtils.h>

#include <mutex>

namespace Tessel {

namespace {

enum PropertyBit { FREE_BIT, REFILLABLE_BIT, REAL_BIT };

template <class Entry>
auto indexById(const std::vector<Entry>& entries) {
  std::map<decltype(Entry::id), Entry> byId;
  for (const Entry& entry : entries) byId.emplace(entry.id, entry);
  return byId;
}

}  // namespace

bool MonetaryType::isFree() const { return BitMasking::getBit(properties, FREE_BIT); }
bool MonetaryType::isRefillable() const { return BitMasking::getBit(properties, REFILLABLE_BIT); }
bool MonetaryType::isReal() const { return BitMasking::getBit(properties, REAL_BIT); }

std::wstring Currency::toString(std::int64_t amount) const {
  return prefix + StringUtils::int64ToString(amount) + postfix;
}

MoneyModel::MoneyModel() = default;

MoneyModel& MoneyModel::getInstance() {
  // Never destroyed: objects that outlive main may still print money.
  static MoneyModel& instance = *new MoneyModel;
  return instance;
}

void MoneyModel::replaceAll(const std::vector<MonetaryUnit>& units, const std::vector<MonetaryType>& types,
                            const std::vector<Currency>& currencies) {
  auto newUnits = indexById(units);
  auto newTypes = indexById(types);
  auto newCurrencies = indexById(currencies);
  const std::lock_guard guard(lock_);
  units_.swap(newUnits);
  types_.swap(newTypes);
  currencies_.swap(newCurrencies);
}

bool MoneyModel::getCurrency(int monetaryUnitId, Currency& out) const {
  const std::shared_lock guard(lock_);
  const auto unit = units_.find(monetaryUnitId);
  if (unit == units_.end()) return false;
  const auto currency = currencies_.find(unit->second.currencyId);
  if (currency == currencies_.end()) return false;
  out = currency->second;
  return true;
}

bool MoneyModel::getMonetaryType(int monetaryUnitId, MonetaryType& out) const {
  const std::shared_lock guard(lock_);
  const auto unit = units_.find(monetaryUnitId);
  if (unit == units_.end()) return false;
  const auto type = types_.find(unit->second.monetaryTypeId);
  if (type == types_.end()) return false;
  out = type->second;
  return true;
}

}  // namespace Tessel
