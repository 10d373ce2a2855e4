#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TournamentLobbyPlayerInfo.h>

namespace Tessel {

std::wstring TournamentLobbyPlayerInfo::toDebugString() const { return {}; }

}  // namespace Tessel
