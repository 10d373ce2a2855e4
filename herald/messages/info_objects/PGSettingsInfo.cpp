#include <herald/messages/info_objects/PGSettingsInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

const GameType* PGSettingsInfo::getGameType() const {
  return GameTypeFactory::createGameType(GameTypes::AllowedGameType{gameType_});
}

const LimitType* PGSettingsInfo::getLimitType() const {
  return LimitTypeFactory::createLimitType(LimitTypes::AllowedLimitType{limitType_});
}

MoneyLimit PGSettingsInfo::getLimits() const {
  Currency currency;
  MoneyModel::getInstance().getCurrency(monetaryUnitId_, currency);
  return {lowerLimit_.getAmount(), upperLimit_.getAmount(), monetaryUnitId_, currency};
}

bool PGSettingsInfo::isRealMoneyGame() const {
  MonetaryType type;
  if (!MoneyModel::getInstance().getMonetaryType(monetaryUnitId_, type))
    throw KeystoneException(L"messages/info_objects/PGSettingsInfo", __LINE__,
                            format(L"Cannot find Monetary Type (id=%d)", monetaryUnitId_));
  return type.isReal();
}

std::wstring PGSettingsInfo::toDebugString() const {
  return format(L"[PGSettingsInfo: settingId=%d, gameType=%d, description=%s, limit=%s]", settingId_, gameType_,
                description_, getLimits().toString());
}

}  // namespace Tessel
