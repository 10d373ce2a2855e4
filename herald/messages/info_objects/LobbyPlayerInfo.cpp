#include <herald/messages/info_objects/LobbyPlayerInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/BitMasking.h>

namespace Tessel {

bool LobbyPlayerInfo::isVIP() const { return BitMasking::getBit(attributes_, VIP_FLAG); }

std::wstring LobbyPlayerInfo::toDebugString() const {
  return formatText(L"[LobbyPlayerInfo: PlayerId=%d, PlayerName=%s, Attributes=%d]", playerId_, playerName_,
                    attributes_);
}

}  // namespace Tessel
