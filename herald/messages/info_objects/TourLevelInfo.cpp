#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TourLevelInfo.h>
#include <herald/platform/keystone/StringUtils.h>

namespace Tessel {

TournamentLevelInformation TourLevelInfo::getInfo() const {
  TournamentLevelInformation level(newLevel_);
  if (usesAnte()) level.setAnte(TournamentAnte(getAnte()));
  if (usesBlinds()) level.setBlinds(TournamentBlind(getSmallBlind(), getBigBlind()));
  if (isDurationInfinite())
    level.setInfiniteDuration();
  else if (isDurationInMs())
    level.setDurationInMs(durationMs_);
  else
    level.setDurationInHands(numHands_);
  return level;
}

std::wstring TourLevelInfo::toDebugString() const {
  return formatText(
      L"[TourLevelInfo: iNewLevel=%d, iDurationMs=%s, iNrHands=%d, iSmallBlind=%s, iBigBlind=%s, iAnte=%s]", newLevel_,
      StringUtils::int64ToString(durationMs_), numHands_, smallBlind_, bigBlind_, ante_);
}

}  // namespace Tessel
