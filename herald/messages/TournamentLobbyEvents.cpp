#include <herald/messages/MessageOperations.h>
#include <herald/messages/TournamentLobbyEvents.h>

namespace Tessel {

std::wstring EnteredTourListMsg::toDebugString() const {
  return formatText(L"[EnteredTourListMsg: NumberTours=%d]", getNumberTours());
}

std::wstring LobbyPlayerList::toDebugString() const {
  return formatText(L"[LobbyPlayerList: NumUpdatedPlayers=%d NumDeletedPlayers=%d]", registeredPlayers_.size(),
                    unregisteredPlayers_.size());
}

std::wstring LobbyTableList::toDebugString() const {
  return formatText(L"[LobbyTableList: NumUpdatedTables=%d NumDeletedTables=%d]", updatedTables_.size(),
                    removedTables_.size());
}

std::wstring LobbyTablePlayerList::toDebugString() const {
  return formatText(L"[LobbyTablePlayerList: TableId=%d, %s]", tableId_, ranking_);
}

}  // namespace Tessel
