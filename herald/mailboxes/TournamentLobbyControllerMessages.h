#pragma once
#include <herald/mailboxes/MessageKind.h>
#include <herald/mailboxes/TournamentLobbyControllerMessageHandler.h>
#include <herald/messages/info_objects/PGSettings.h>
#include <herald/messages/info_objects/PokerGameInfo.h>
#include <herald/platform/keystone/ClonePointer.h>
#include <herald/platform/keystone/NotificationUpdateObject.h>
#include <herald/platform/keystone/UserLoginProperties.h>

#include <string>
#include <utility>

// What the user asks of the controller of the lobby (LC) and of the tournament lobbies (TLC).

namespace Tessel {

/// Where a chat text goes, and which list of the casino is shown; the values are the application's.
enum class ChatDestination : int {};
enum class CasinoListTypes : int {};

/// Base of the requests to the controller. A message is made on the heap and posted; the mailbox owns it, then whoever
/// picks it up.
class HERALD_API TournamentLobbyControllerMessage {
 public:
  using Handler = TournamentLobbyControllerMessageHandler;

  virtual ~TournamentLobbyControllerMessage();
  /// Calls the handler's operation for the message's own kind.
  virtual void handle(TournamentLobbyControllerMessageHandler& handler) const = 0;
  /// One line of text for traces.
  virtual std::wstring toDebugString() const = 0;

 protected:
  TournamentLobbyControllerMessage() = default;
  TournamentLobbyControllerMessage(const TournamentLobbyControllerMessage&) = default;
  TournamentLobbyControllerMessage(TournamentLobbyControllerMessage&&) = default;
  TournamentLobbyControllerMessage& operator=(const TournamentLobbyControllerMessage&) = default;
  TournamentLobbyControllerMessage& operator=(TournamentLobbyControllerMessage&&) = default;
};

template <class Kind>
using ControllerMessage = MessageKind<Kind, TournamentLobbyControllerMessage>;

/// A base that applications may give other controller messages of theirs; no mailbox of the library carries it.
class HERALD_API LobbyControllerMessage {
 public:
  virtual ~LobbyControllerMessage();
  virtual std::wstring toDebugString() const = 0;
};

/// Show a table.
class HERALD_API LCGotoTable : public ControllerMessage<LCGotoTable> {
 public:
  LCGotoTable(int node, int game) : nodeId(node), gameId(game) {}

  std::wstring toDebugString() const override;

  int nodeId;
  int gameId;
};

class HERALD_API LCJoinLobbyReq : public ControllerMessage<LCJoinLobbyReq> {
 public:
  explicit LCJoinLobbyReq(int lobby) : lobbyId(lobby) {}

  std::wstring toDebugString() const override;

  int lobbyId;
};

/// Log in. The debug text says whether there is a password (1) or none (0), and nothing else of it.
class HERALD_API LCConnect : public ControllerMessage<LCConnect> {
 public:
  explicit LCConnect(UserLoginProperties properties) : login(std::move(properties)) {}

  std::wstring toDebugString() const override;

  UserLoginProperties login;
};

/// Go on the waiting list.
class HERALD_API LCWaitingReq : public ControllerMessage<LCWaitingReq> {
 public:
  std::wstring toDebugString() const override;
};

/// Leave the waiting list.
class HERALD_API LCLeaveWaitingReq : public ControllerMessage<LCLeaveWaitingReq> {
 public:
  std::wstring toDebugString() const override;
};

class HERALD_API LCChatMsg : public ControllerMessage<LCChatMsg> {
 public:
  explicit LCChatMsg(std::wstring chatText) : text(std::move(chatText)) {}

  std::wstring toDebugString() const override;

  std::wstring text;
};

class HERALD_API LCCreateTable : public ControllerMessage<LCCreateTable> {
 public:
  std::wstring toDebugString() const override;
};

/// Create a private table.
class HERALD_API LCCreateTableReq : public ControllerMessage<LCCreateTableReq> {
 public:
  LCCreateTableReq(int tableId, int maxPlayers, PGSettings::JoinType moderated, std::wstring description,
                   PokerGameInfo::GameSpeed speed, int minBuyIn)
      : tableId_(tableId), maxPlayers_(maxPlayers), minBuyIn_(minBuyIn), moderated_(moderated),
        description_(std::move(description)), speed_(speed) {}

  int getId() const { return tableId_; }
  int getMaxPlayers() const { return maxPlayers_; }
  int getMinBuyIn() const { return minBuyIn_; }
  PGSettings::JoinType isModerated() const { return moderated_; }
  std::wstring getDescription() const { return description_; }
  PokerGameInfo::GameSpeed getSpeed() const { return speed_; }

  std::wstring toDebugString() const override;

 private:
  int tableId_;
  int maxPlayers_;
  int minBuyIn_;
  PGSettings::JoinType moderated_;
  std::wstring description_;
  PokerGameInfo::GameSpeed speed_;
};

class HERALD_API LCUserInactive : public ControllerMessage<LCUserInactive> {
 public:
  std::wstring toDebugString() const override;
};

class HERALD_API LCGameSelected : public ControllerMessage<LCGameSelected> {
 public:
  explicit LCGameSelected(int gameId) : gameId_(gameId) {}

  int getGameId() const { return gameId_; }

  std::wstring toDebugString() const override;

 private:
  int gameId_;
};

class HERALD_API LCRequestGameListNode : public ControllerMessage<LCRequestGameListNode> {
 public:
  LCRequestGameListNode(int nodeId, char type) : nodeId_(nodeId), type_(type) {}

  int getNodeId() const { return nodeId_; }
  char getType() const { return type_; }

  std::wstring toDebugString() const override;

 private:
  int nodeId_;
  char type_;
};

class HERALD_API LCInformModelThatViewNotInFocus : public ControllerMessage<LCInformModelThatViewNotInFocus> {
 public:
  explicit LCInformModelThatViewNotInFocus(int type) : type_(type) {}

  int getType() const { return type_; }

  std::wstring toDebugString() const override;

 private:
  int type_;
};

class HERALD_API LCRequestAccountBalance : public ControllerMessage<LCRequestAccountBalance> {
 public:
  std::wstring toDebugString() const override;
};

class HERALD_API LCClassificationReq : public ControllerMessage<LCClassificationReq> {
 public:
  explicit LCClassificationReq(std::wstring classificationText) : classification(std::move(classificationText)) {}

  std::wstring toDebugString() const override;

  std::wstring classification;
};

/// Passes on a notification of a model. It owns a clone of the update object, and a copy owns one of its own.
class HERALD_API TLCNotificationUpdate : public ControllerMessage<TLCNotificationUpdate> {
 public:
  explicit TLCNotificationUpdate(const NotificationUpdateObject& update)
      : update_(std::unique_ptr<NotificationUpdateObject>(update.clone())) {}

  /// The object stays the message's.
  const NotificationUpdateObject* getNotificationUpdateObject() const { return update_.get(); }

  std::wstring toDebugString() const override;

 private:
  ClonePointer<NotificationUpdateObject> update_;
};

class HERALD_API TLCInitConnect : public ControllerMessage<TLCInitConnect> {
 public:
  TLCInitConnect(UserLoginProperties login, int nodeId) : login_(std::move(login)), nodeId_(nodeId) {}

  UserLoginProperties getUserProperties() const { return login_; }
  int getNodeId() const { return nodeId_; }

  std::wstring toDebugString() const override;

 private:
  UserLoginProperties login_;
  int nodeId_;
};

class HERALD_API TLCJoinTournamentLobbyReq : public ControllerMessage<TLCJoinTournamentLobbyReq> {
 public:
  explicit TLCJoinTournamentLobbyReq(int tournament) : tournamentId(tournament) {}

  std::wstring toDebugString() const override;

  int tournamentId;
};

class HERALD_API TLCChatMsg : public ControllerMessage<TLCChatMsg> {
 public:
  TLCChatMsg(ChatDestination chatDestination, std::wstring chatText)
      : text(std::move(chatText)), destination(chatDestination) {}

  std::wstring toDebugString() const override;

  std::wstring text;
  ChatDestination destination;
};

class HERALD_API TLCCloseTournamentLobby : public ControllerMessage<TLCCloseTournamentLobby> {
 public:
  explicit TLCCloseTournamentLobby(int id = -1) : id_(id) {}

  int getId() const { return id_; }

  std::wstring toDebugString() const override;

 private:
  int id_;
};

/// Register for a tournament. The debug text prints the password, as its format says.
class HERALD_API TLCRegisterForTournament : public ControllerMessage<TLCRegisterForTournament> {
 public:
  TLCRegisterForTournament(int id, std::wstring privateTournamentPassword)
      : id_(id), privateTournamentPassword_(std::move(privateTournamentPassword)) {}

  int getId() const { return id_; }
  std::wstring getPrivateTournamentPassword() const { return privateTournamentPassword_; }

  std::wstring toDebugString() const override;

 private:
  int id_;
  std::wstring privateTournamentPassword_;
};

class HERALD_API TLCUnregisterForTournament : public ControllerMessage<TLCUnregisterForTournament> {
 public:
  explicit TLCUnregisterForTournament(int id = -1) : id_(id) {}

  int getId() const { return id_; }

  std::wstring toDebugString() const override;

 private:
  int id_;
};

class HERALD_API TLCTournamentTableReq : public ControllerMessage<TLCTournamentTableReq> {
 public:
  TLCTournamentTableReq(int tournamentId, int tableId) : tournamentId_(tournamentId), tableId_(tableId) {}

  int getTournamentId() const { return tournamentId_; }
  int getTableId() const { return tableId_; }

  std::wstring toDebugString() const override;

 private:
  int tournamentId_;
  int tableId_;
};

/// Open a tournament table. The debug text names the table twice: its number is its id.
class HERALD_API TLCTournamentOpenTableReq : public ControllerMessage<TLCTournamentOpenTableReq> {
 public:
  TLCTournamentOpenTableReq(int tournamentId, int tableId) : tournamentId_(tournamentId), tableId_(tableId) {}

  int getTournamentId() const { return tournamentId_; }
  int getTableId() const { return tableId_; }

  std::wstring toDebugString() const override;

 private:
  int tournamentId_;
  int tableId_;
};

class HERALD_API TLCShowLobby : public ControllerMessage<TLCShowLobby> {
 public:
  TLCShowLobby(CasinoListTypes lobbyId, int nodeId) : lobbyId_(lobbyId), nodeId_(nodeId) {}

  CasinoListTypes getLobbyId() const { return lobbyId_; }
  int getNodeId() const { return nodeId_; }

  std::wstring toDebugString() const override;

 private:
  CasinoListTypes lobbyId_;
  int nodeId_;
};

class HERALD_API TLCRebuyReply : public ControllerMessage<TLCRebuyReply> {
 public:
  explicit TLCRebuyReply(int tournamentId) : tournamentId_(tournamentId) {}

  int getTourId() const { return tournamentId_; }

  std::wstring toDebugString() const override;

 private:
  int tournamentId_;
};

class HERALD_API TLCRequestGameListNode : public ControllerMessage<TLCRequestGameListNode> {
 public:
  TLCRequestGameListNode(int nodeId, char type) : nodeId_(nodeId), type_(type) {}

  int getNodeId() const { return nodeId_; }
  char getType() const { return type_; }

  std::wstring toDebugString() const override;

 private:
  int nodeId_;
  char type_;
};

class HERALD_API TLCUserActive : public ControllerMessage<TLCUserActive> {
 public:
  std::wstring toDebugString() const override;
};

class HERALD_API TLCCancelPrivateTournament : public ControllerMessage<TLCCancelPrivateTournament> {
 public:
  explicit TLCCancelPrivateTournament(int tournamentId) : tournamentId_(tournamentId) {}

  int getTournamentId() const { return tournamentId_; }

  std::wstring toDebugString() const override;

 private:
  int tournamentId_;
};

class HERALD_API TLCStartPrivateTournament : public ControllerMessage<TLCStartPrivateTournament> {
 public:
  explicit TLCStartPrivateTournament(int tournamentId) : tournamentId_(tournamentId) {}

  int getTournamentId() const { return tournamentId_; }

  std::wstring toDebugString() const override;

 private:
  int tournamentId_;
};

}  // namespace Tessel
