#include <herald/messages/info_objects/InfoListOperations.h>
#include <herald/messages/info_objects/PokerGameInfo.h>
#include <herald/platform/keystone/BitMasking.h>

namespace Tessel {

PokerGameInfo::PokerGameInfo(const GameInfo& game, const GameType* gameType, const LimitType* limitType,
                             std::int64_t lowerLimit, std::int64_t upperLimit, bool isPrivate, bool isModerated,
                             GameSpeed speed, bool isBootable, bool isNetworkTable)
    : lowerLimit_(lowerLimit), upperLimit_(upperLimit), gameType_(static_cast<std::int8_t>(gameType->getValue())),
      limitType_(static_cast<std::int8_t>(limitType->getValue())),
      tableFlags_(static_cast<std::int8_t>((static_cast<int>(speed) & SPEED_MASK) | isPrivate << PRIVATE_BIT
                                           | isModerated << MODERATED_BIT | isBootable << BOOTABLE_BIT
                                           | isNetworkTable << NETWORK_BIT)) {
  GameInfo::operator=(game);
}

const GameType* PokerGameInfo::getGameType() const {
  return GameTypeFactory::createGameType(GameTypes::AllowedGameType{gameType_});
}

const LimitType* PokerGameInfo::getLimitType() const {
  return LimitTypeFactory::createLimitType(LimitTypes::AllowedLimitType{limitType_});
}

MoneyLimit PokerGameInfo::getLimits() const {
  Currency currency;
  MoneyModel::getInstance().getCurrency(getMonetaryUnitId(), currency);
  return {lowerLimit_.getAmount(), upperLimit_.getAmount(), getMonetaryUnitId(), currency};
}

LobbyNodeInterface* PokerGameInfo::cloneNode() const { return new PokerGameInfo(*this); }

bool PokerGameInfo::hasFlag(int bit) const { return BitMasking::getBit(tableFlags_, bit); }

std::wstring PokerGameInfo::toDebugString() const {
  return formatText(L"[PokerGameInfo: %s]", GameInfo::toDebugString());
}

template class InfoList<PokerGameInfo>;

}  // namespace Tessel
