#pragma once
#include <herald/messages/info_objects/AmountInfo.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/MoneyLimit.h>
#include <herald/platform/tableau/GameType.h>
#include <herald/platform/tableau/LimitType.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A setting with which a private table can be created.
class HERALD_API PGSettingsInfo : public ReadableRecord<PGSettingsInfo> {
 public:
  int getSettingId() const { return settingId_; }
  /// Never null; lives as long as the process.
  const GameType* getGameType() const;
  /// Never null; lives as long as the process.
  const LimitType* getLimitType() const;
  std::wstring getDescription() const { return description_.getString(); }
  /// The limits in the currency that `MoneyModel` knew for their monetary unit when the record was read; in a default
  /// one otherwise.
  const MoneyLimit& getLimits() const { return limits_; }
  /// Throws `KeystoneException` when `MoneyModel` knows no type for the monetary unit of the limits.
  bool isRealMoneyGame() const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("settingId", self.settingId_);
    fields.template named<GameTypes::AllowedGameType>("gameType", self.gameType_);
    fields.template named<LimitTypes::AllowedLimitType>("limitType", self.limitType_);
    fields("description", self.description_);
    fields("monetaryUnitId", self.monetaryUnitId_);
    fields("lowerLimit", self.lowerLimit_);
    fields("upperLimit", self.upperLimit_);
    fields.onRead(self, &PGSettingsInfo::buildLimits);
  }

 private:
  bool buildLimits();

  std::int32_t settingId_ = -1;
  std::int8_t gameType_ = -1;
  std::int8_t limitType_ = -1;
  Text description_;
  std::int16_t monetaryUnitId_ = -1;
  Amount lowerLimit_;
  Amount upperLimit_;
  MoneyLimit limits_;
};

}  // namespace Tessel
