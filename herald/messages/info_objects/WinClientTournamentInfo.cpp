#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/WinClientTournamentInfo.h>

namespace Tessel {

const GameType* WinClientTournamentInfo::getGameType() const {
  return GameTypeFactory::createGameType(GameTypes::AllowedGameType{gameType_});
}

const LimitType* WinClientTournamentInfo::getLimitType() const {
  return LimitTypeFactory::createLimitType(LimitTypes::AllowedLimitType{limitType_});
}

Money WinClientTournamentInfo::bigBlind(int i) const {
  return {bigBlinds_.at(i).getAmount(), travelled_.startingChips.getMonetaryUnitId()};
}

bool WinClientTournamentInfo::takeMoney() {
  buyIn_ = travelled_.buyIn.getMoney();
  fee_ = travelled_.fee.getMoney();
  prizePool_ = travelled_.prizePool.getMoney();
  startingChips_ = travelled_.startingChips.getMoney();
  return true;
}

std::wstring WinClientTournamentInfo::toDebugString() const { return {}; }

}  // namespace Tessel
