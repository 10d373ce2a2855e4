#include <herald/messages/info_objects/LobbyInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

void LobbyInfo::requireMore(bool hasMore) {
  if (!hasMore)
    throw KeystoneException(L"messages/info_objects/LobbyInfo", __LINE__, L"Error when reading bytestream.");
}

std::wstring LobbyInfo::toDebugString() const {
  return formatText(
      L"[LobbyInfo: id=%d, nr players=%d, players=%s, nr players waiting=%d, players waiting=%s, name=%s]", id_,
      nrPlayers_, joinDebugTexts(players_), nrPlayersWaiting_, joinDebugTexts(playersWaiting_), name_);
}

}  // namespace Tessel
