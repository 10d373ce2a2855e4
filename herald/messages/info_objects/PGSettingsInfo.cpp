#include <herald/messages/info_objects/PGSettingsInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/Exceptions.h>

#include <utility>

namespace Tessel {

const GameType* PGSettingsInfo::getGameType() const {
  return GameTypeFactory::createGameType(GameTypes::AllowedGameType{gameType_});
}

const LimitType* PGSettingsInfo::getLimitType() const {
  return LimitTypeFactory::createLimitType(LimitTypes::AllowedLimitType{limitType_});
}

bool PGSettingsInfo::buildLimits() {
  Currency currency;
  MoneyModel::getInstance().getCurrency(monetaryUnitId_, currency);
  limits_ = {lowerLimit_.getAmount(), upperLimit_.getAmount(), monetaryUnitId_, std::move(currency)};
  return true;
}

bool PGSettingsInfo::isRealMoneyGame() const {
  const int unit = limits_.getMonetaryUnitId();
  MonetaryType type;
  if (!MoneyModel::getInstance().getMonetaryType(unit, type))
    throw KeystoneException(L"messages/info_objects/PGSettingsInfo", __LINE__,
                            formatText(L"Cannot find Monetary Type (id=%d)", unit));
  return type.isReal();
}

std::wstring PGSettingsInfo::toDebugString() const {
  return formatText(L"[PGSettingsInfo: settingId=%d, gameType=%d, description=%s, limit=%s]", settingId_, gameType_,
                    description_, limits_.toString());
}

}  // namespace Tessel
