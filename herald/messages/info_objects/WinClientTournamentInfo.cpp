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
  return {bigBlinds_.at(i).getAmount(), startingChips_.getMonetaryUnitId()};
}

std::wstring WinClientTournamentInfo::toDebugString() const { return {}; }

}  // namespace Tessel
