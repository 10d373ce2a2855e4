#include <herald/SpecificTournamentModel/TournamentRegisteredPlayers.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/StringUtils.h>

namespace Tessel {

TournamentRegisteredPlayersReader::~TournamentRegisteredPlayersReader() = default;

const LobbyPlayerInfo& TournamentRegisteredPlayers::getRegisteredPlayer(int id) const {
  const LobbyPlayerInfo* player = players_.find(id);
  // Logs and bug trackers know this failure by its line number, which therefore stays.
  if (player == nullptr)
    throw NullPointerException(L"SpecificTournamentModel/TournamentRegisteredPlayers", 51, L"id",
                               StringUtils::intToString(id));
  return *player;
}

}  // namespace Tessel
