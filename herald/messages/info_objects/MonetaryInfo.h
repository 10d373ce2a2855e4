#pragma once
#include <herald/messages/info_objects/CurrencyInfo.h>
#include <herald/messages/info_objects/MonetaryTypeInfo.h>
#include <herald/messages/info_objects/MonetaryUnitInfo.h>
#include <herald/platform/keystone/List.h>

namespace Tessel {

class MoneyModel;

/// The monetary units, types and currencies of a server.
class HERALD_API MonetaryInfo : public PlainRecord<MonetaryInfo> {
 public:
  MonetaryInfo() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit MonetaryInfo(ByteStream& in);

  int getMonetaryUnitCount() const { return static_cast<int>(units_.size()); }
  int getMonetaryTypeCount() const { return static_cast<int>(types_.size()); }
  int getCurrencyCount() const { return static_cast<int>(currencies_.size()); }

  // Each answers a default entry for an index outside 0 to the count - 1.
  MonetaryUnitInfo getMonetaryUnitInfo(int i) const;
  MonetaryTypeInfo getMonetaryTypeInfo(int i) const;
  CurrencyInfo getCurrencyInfo(int i) const;

  /// Replaces all that the model knows by what this record holds. From then on amounts print in their currencies.
  void applyTo(MoneyModel& model) const;

  std::wstring toDebugString() const;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template countedOrNone<std::int8_t>("units", self.units_);
    fields.template countedOrNone<std::int8_t>("types", self.types_);
    fields.template countedOrNone<std::int8_t>("currencies", self.currencies_);
  }

 private:
  List<MonetaryUnitInfo> units_;
  List<MonetaryTypeInfo> types_;
  List<CurrencyInfo> currencies_;
};

}  // namespace Tessel
