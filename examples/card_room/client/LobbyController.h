#pragma once
#include <herald/mailboxes/TournamentLobbyControllerMessages.h>

namespace CardRoom {

/// Takes the commands of the user to the lobby and to tournaments. What this card room does not offer is passed over.
class LobbyController : public Tessel::TournamentLobbyControllerMessageHandler {
 public:
  using TournamentLobbyControllerMessageHandler::handle;
  void handle(const Tessel::LCRequestAccountBalance&) override {}
  void handle(const Tessel::LCInformModelThatViewNotInFocus&) override {}
  void handle(const Tessel::LCRequestGameListNode&) override {}
  void handle(const Tessel::LCClassificationReq&) override {}
  void handle(const Tessel::LCGameSelected&) override {}
  void handle(const Tessel::LCUserInactive&) override {}
  void handle(const Tessel::LCLeaveWaitingReq&) override {}
  void handle(const Tessel::LCCreateTableReq&) override {}
  void handle(const Tessel::LCCreateTable&) override {}
  void handle(const Tessel::LCWaitingReq&) override {}
  void handle(const Tessel::LCChatMsg&) override {}
  void handle(const Tessel::LCConnect&) override {}
  void handle(const Tessel::LCJoinLobbyReq&) override {}
  void handle(const Tessel::LCGotoTable&) override {}
  void handle(const Tessel::TLCNotificationUpdate&) override {}
  void handle(const Tessel::TLCStartPrivateTournament&) override {}
  void handle(const Tessel::TLCCancelPrivateTournament&) override {}
  void handle(const Tessel::TLCUserActive&) override {}
  void handle(const Tessel::TLCRequestGameListNode&) override {}
  void handle(const Tessel::TLCRebuyReply&) override {}
  void handle(const Tessel::TLCShowLobby&) override {}
  void handle(const Tessel::TLCTournamentOpenTableReq&) override {}
  void handle(const Tessel::TLCTournamentTableReq&) override {}
  void handle(const Tessel::TLCUnregisterForTournament&) override {}
  void handle(const Tessel::TLCRegisterForTournament&) override {}
  void handle(const Tessel::TLCCloseTournamentLobby&) override {}
  void handle(const Tessel::TLCChatMsg&) override {}
  void handle(const Tessel::TLCJoinTournamentLobbyReq&) override {}
  void handle(const Tessel::TLCInitConnect&) override {}
};

}  // namespace CardRoom
