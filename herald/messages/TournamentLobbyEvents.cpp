#include <herald/messages/MessageOperations.h>
#include <herald/messages/TournamentLobbyEvents.h>

namespace Tessel {

std::wstring EnteredTourListMsg::toDebugString() const {
  return format(L"[EnteredTourListMsg: NumberTours=%d]", getNumberTours());
}

std::wstring LobbyPlayerList::toDebugString() const {
  return format(L"[LobbyPlayerList: NumUpdatedPlayers=%d NumDeletedPlayers=%d]", registeredPlayers_.size(),
                unregisteredPlayers_.size());
}

std::wstring LobbyTableList::toDebugString() const {
  return format(L"[LobbyTableList: NumUpdatedTables=%d NumDeletedTables=%d]", updatedTables_.size(),
                removedTables_.size());
}

std::wstring LobbyTablePlayerList::toDebugString() const {
  return format(L"[LobbyTablePlayerList: TableId=%d, %s]", tableId_, ranking_);
}

}  // namespace Tessel
