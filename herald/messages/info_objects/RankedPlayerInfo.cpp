#include <herald/messages/info_objects/RankedPlayerInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/BitMasking.h>

namespace Tessel {

RankedPlayer RankedPlayerInfo::getRankedPlayer() const {
  return {playerId_, position_, playerName_.getString(), chipStack_.getMoney(),
          BitMasking::getBit(attributes_, VIP_BIT)};
}

std::wstring RankedPlayerInfo::toDebugString() const {
  return formatText(L"[RankedPlayerInfo: PlayerId=%d, PlayerName=%s, Position=%d, ChipStack=%s, Attributes=%d]",
                    playerId_, playerName_, position_, chipStack_, attributes_);
}

}  // namespace Tessel
