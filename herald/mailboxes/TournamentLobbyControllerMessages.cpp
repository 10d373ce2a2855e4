#include <herald/mailboxes/MessageKindOperations.h>
#include <herald/mailboxes/TournamentLobbyControllerMessages.h>
#include <herald/platform/keystone/Format.h>

namespace Tessel {

TournamentLobbyControllerMessage::~TournamentLobbyControllerMessage() = default;
TournamentLobbyControllerMessageHandler::~TournamentLobbyControllerMessageHandler() = default;
LobbyControllerMessage::~LobbyControllerMessage() = default;

void TournamentLobbyControllerMessageHandler::handle(TournamentLobbyControllerMessageHandler& handler,
                                                     TournamentLobbyControllerMessage* message) {
  handle(handler, std::unique_ptr<TournamentLobbyControllerMessage>(message));
}

void TournamentLobbyControllerMessageHandler::handle(TournamentLobbyControllerMessageHandler& handler,
                                                     std::unique_ptr<TournamentLobbyControllerMessage> message) {
  message->handle(handler);
}

std::wstring LCGotoTable::toDebugString() const {
  return formatText(L"[LCGotoTable: Node id: %d Game id: %d]", nodeId, gameId);
}

std::wstring LCJoinLobbyReq::toDebugString() const { return formatText(L"[LCJoinLobbyReq: %d]", lobbyId); }

std::wstring LCConnect::toDebugString() const {
  return formatText(L"[LCConnect: NickName=%s Password=%d rememberPassword=%d autoLogin=%d ]",
                    login.getForeignNickName(), !login.getPassword().empty(), login.wantsRememberPassword(),
                    login.wantsAutoLogin());
}

std::wstring LCWaitingReq::toDebugString() const { return L"[LCWaitingReq:]"; }

std::wstring LCLeaveWaitingReq::toDebugString() const { return L"[LCLeaveWaitingReq:]"; }

std::wstring LCChatMsg::toDebugString() const { return formatText(L"[LCChatMsg: %s]", text); }

std::wstring LCCreateTable::toDebugString() const { return L"[LCCreateTable:]"; }

std::wstring LCCreateTableReq::toDebugString() const {
  return formatText(
      L"[LCCreateTableReq: TableId=%d, MaxPlayers=%d, MinBuyIn=%d, Moderated=%d, Description=%s, Speed=%d]", tableId_,
      maxPlayers_, minBuyIn_, moderated_, description_, speed_);
}

std::wstring LCUserInactive::toDebugString() const { return L"[LCUserInactive:]"; }

std::wstring LCGameSelected::toDebugString() const { return formatText(L"[LCGameSelected: GameId=%d]", gameId_); }

std::wstring LCRequestGameListNode::toDebugString() const {
  return formatText(L"[LCRequestGameListNode id=%d]", nodeId_);
}

std::wstring LCInformModelThatViewNotInFocus::toDebugString() const {
  return formatText(L"[LCInformModelThatViewNotInFocus type=%d]", type_);
}

std::wstring LCRequestAccountBalance::toDebugString() const { return L"[LCRequestAccountBalance]"; }

std::wstring LCClassificationReq::toDebugString() const {
  return formatText(L"[LCClassificationReq %s]", classification);
}

std::wstring TLCNotificationUpdate::toDebugString() const { return L"[TLCNotificationUpdate]"; }

std::wstring TLCInitConnect::toDebugString() const {
  return formatText(L"[TLCInitConnect: User=%s, NodeId = %d]", login_.getForeignNickName(), nodeId_);
}

std::wstring TLCJoinTournamentLobbyReq::toDebugString() const {
  return formatText(L"[TLCJoinTournamentLobbyReq: %d]", tournamentId);
}

std::wstring TLCChatMsg::toDebugString() const { return formatText(L"[TLCChatMsg: %s %d]", text, destination); }

std::wstring TLCCloseTournamentLobby::toDebugString() const {
  return formatText(L"[TLCCloseTournamentLobby: %d]", id_);
}

std::wstring TLCRegisterForTournament::toDebugString() const {
  return formatText(L"[TLCRegisterForTournament: %d, password=%s]", id_, privateTournamentPassword_);
}

std::wstring TLCUnregisterForTournament::toDebugString() const {
  return formatText(L"[TLCUnregisterForTournament: %d]", id_);
}

std::wstring TLCTournamentTableReq::toDebugString() const { return L"[TLCTournamentTableReq]"; }

std::wstring TLCTournamentOpenTableReq::toDebugString() const {
  return formatText(L"[TLCTournamentOpenTableReq: %d %d tabnr=%d]", tournamentId_, tableId_, tableId_);
}

std::wstring TLCShowLobby::toDebugString() const {
  return formatText(L"[TLCShowLobby: %d, iNodeId=%d]", lobbyId_, nodeId_);
}

std::wstring TLCRebuyReply::toDebugString() const { return L"[LCRebuyRequest]"; }

std::wstring TLCRequestGameListNode::toDebugString() const {
  return formatText(L"[LCRequestGameListNode id=%d]", nodeId_);
}

std::wstring TLCUserActive::toDebugString() const { return L"[TLCUserActive]"; }

std::wstring TLCCancelPrivateTournament::toDebugString() const {
  return formatText(L"[TLCCancelPrivateTournament - tourId=%d]", tournamentId_);
}

std::wstring TLCStartPrivateTournament::toDebugString() const {
  return formatText(L"[TLCStartPrivateTournament - tourId=%d]", tournamentId_);
}

}  // namespace Tessel
