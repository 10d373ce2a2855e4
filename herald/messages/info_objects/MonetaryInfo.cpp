#include <herald/messages/info_objects/MonetaryInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/MoneyModel.h>

namespace Tessel {

namespace {

template <class Entry>
Entry entryAt(const List<Entry>& entries, int i) {
  return i >= 0 && static_cast<std::size_t>(i) < entries.size() ? entries[static_cast<std::size_t>(i)] : Entry();
}

}  // namespace

MonetaryInfo::MonetaryInfo(ByteStream& in) { read(in); }

MonetaryUnitInfo MonetaryInfo::getMonetaryUnitInfo(int i) const { return entryAt(units_, i); }

MonetaryTypeInfo MonetaryInfo::getMonetaryTypeInfo(int i) const { return entryAt(types_, i); }

CurrencyInfo MonetaryInfo::getCurrencyInfo(int i) const { return entryAt(currencies_, i); }

void MonetaryInfo::applyTo(MoneyModel& model) const {
  std::vector<MonetaryUnit> units;
  for (const auto& unit : units_) units.push_back({unit.getId(), unit.getMonetaryTypeId(), unit.getCurrencyId()});

  std::vector<MonetaryType> types;
  for (const auto& type : types_)
    types.push_back({type.getId(), type.getName(), type.getProperties(), type.getSortingPriority()});

  std::vector<Currency> currencies;
  for (const auto& currency : currencies_)
    currencies.push_back({currency.getId(), currency.getPrefix(), currency.getPostfix(), currency.getCutOffAmount(),
                          currency.getSortingPriority()});

  model.replaceAll(units, types, currencies);
}

std::wstring MonetaryInfo::toDebugString() const {
  std::wstring entries = joinDebugTexts(units_);
  for (const std::wstring& more : {joinDebugTexts(types_), joinDebugTexts(currencies_)}) {
    if (!entries.empty() && !more.empty()) entries += L", ";
    entries += more;
  }
  return L"[MonetaryInfo:" + entries + L"]";
}

template class PlainRecord<MonetaryInfo>;

}  // namespace Tessel
