#pragma once
#include <herald/platform/keystone/Export.h>

#include <memory>

namespace Tessel {

class TournamentLobbyControllerMessage;
class LCChatMsg;
class LCClassificationReq;
class LCConnect;
class LCCreateTable;
class LCCreateTableReq;
class LCGameSelected;
class LCGotoTable;
class LCInformModelThatViewNotInFocus;
class LCJoinLobbyReq;
class LCLeaveWaitingReq;
class LCRequestAccountBalance;
class LCRequestGameListNode;
class LCUserInactive;
class LCWaitingReq;
class TLCCancelPrivateTournament;
class TLCChatMsg;
class TLCCloseTournamentLobby;
class TLCInitConnect;
class TLCJoinTournamentLobbyReq;
class TLCNotificationUpdate;
class TLCRebuyReply;
class TLCRegisterForTournament;
class TLCRequestGameListNode;
class TLCShowLobby;
class TLCStartPrivateTournament;
class TLCTournamentOpenTableReq;
class TLCTournamentTableReq;
class TLCUnregisterForTournament;
class TLCUserActive;

/// Receives what the user asks of the lobby's and the tournament lobbies' controller: one operation per kind of
/// message. A handler operation must not keep a reference to the message.
class HERALD_API TournamentLobbyControllerMessageHandler {
 public:
  virtual ~TournamentLobbyControllerMessageHandler();

  /// Delivers the message to the handler and deletes it, also when the handler throws. Takes ownership; not null.
  static void handle(TournamentLobbyControllerMessageHandler& handler, TournamentLobbyControllerMessage* message);
  static void handle(TournamentLobbyControllerMessageHandler& handler,
                     std::unique_ptr<TournamentLobbyControllerMessage> message);

  virtual void handle(const LCRequestAccountBalance& message) = 0;
  virtual void handle(const LCInformModelThatViewNotInFocus& message) = 0;
  virtual void handle(const LCRequestGameListNode& message) = 0;
  virtual void handle(const LCClassificationReq& message) = 0;
  virtual void handle(const LCGameSelected& message) = 0;
  virtual void handle(const LCUserInactive& message) = 0;
  virtual void handle(const LCLeaveWaitingReq& message) = 0;
  virtual void handle(const LCCreateTableReq& message) = 0;
  virtual void handle(const LCCreateTable& message) = 0;
  virtual void handle(const LCWaitingReq& message) = 0;
  virtual void handle(const LCChatMsg& message) = 0;
  virtual void handle(const LCConnect& message) = 0;
  virtual void handle(const LCJoinLobbyReq& message) = 0;
  virtual void handle(const LCGotoTable& message) = 0;
  virtual void handle(const TLCNotificationUpdate& message) = 0;
  virtual void handle(const TLCStartPrivateTournament& message) = 0;
  virtual void handle(const TLCCancelPrivateTournament& message) = 0;
  virtual void handle(const TLCUserActive& message) = 0;
  virtual void handle(const TLCRequestGameListNode& message) = 0;
  virtual void handle(const TLCRebuyReply& message) = 0;
  virtual void handle(const TLCShowLobby& message) = 0;
  virtual void handle(const TLCTournamentOpenTableReq& message) = 0;
  virtual void handle(const TLCTournamentTableReq& message) = 0;
  virtual void handle(const TLCUnregisterForTournament& message) = 0;
  virtual void handle(const TLCRegisterForTournament& message) = 0;
  virtual void handle(const TLCCloseTournamentLobby& message) = 0;
  virtual void handle(const TLCChatMsg& message) = 0;
  virtual void handle(const TLCJoinTournamentLobbyReq& message) = 0;
  virtual void handle(const TLCInitConnect& message) = 0;
};

}  // namespace Tessel
