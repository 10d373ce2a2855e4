#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TournamentLobbyTableInfo.h>

namespace Tessel {

std::wstring TournamentLobbyTableInfo::toDebugString() const { return {}; }

}  // namespace Tessel
