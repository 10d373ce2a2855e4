#include <herald/messages/MessageOperations.h>
#include <herald/messages/PrivateGameEvents.h>

namespace Tessel {

std::wstring PGPlayerReqToJoinGame::toDebugString() const {
  return formatText(L"[PGPlayerReqToJoinGame: %s]", player_);
}

}  // namespace Tessel
