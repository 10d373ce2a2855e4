#pragma once
#include <herald/mailboxes/BasicTexasStatControllerMessages.h>
#include <herald/mailboxes/GameModelNotifMessages.h>
#include <herald/mailboxes/LobbyToGameMessages.h>
#include <herald/mailboxes/MailBox.h>
#include <herald/mailboxes/PlayerNotesSubscriberMessages.h>
#include <herald/mailboxes/ServerViewMessages.h>
#include <herald/mailboxes/TournamentLobbyControllerMessages.h>
#include <herald/messages/ClientMessage.h>

namespace Tessel {

extern template class MailBox<BasicTexasStatControllerMessage, 1>;
extern template class MailBox<ClientMessage, 1>;
extern template class MailBox<GameModelNotifMessage, 1>;
extern template class MailBox<LobbyToGameMessage, 1>;
extern template class MailBox<PlayerNotesSubscriberMessage, 1>;
extern template class MailBox<ServerViewMessage, 1>;
extern template class MailBox<TournamentLobbyControllerMessage, 1>;

/// Commands to the statistics view.
class HERALD_API BasicTexasStatControllerMessageMailBox : public MailBox<BasicTexasStatControllerMessage, 1> {
 public:
  explicit BasicTexasStatControllerMessageMailBox(PostOffice* postOffice = nullptr);
  ~BasicTexasStatControllerMessageMailBox() override;
};

/// Decoded messages of a server.
class HERALD_API ClientMessageMailBox : public MailBox<ClientMessage, 1> {
 public:
  explicit ClientMessageMailBox(PostOffice* postOffice = nullptr);
  ~ClientMessageMailBox() override;
};

/// Notifications of the game models.
class HERALD_API GameModelNotifMailbox : public MailBox<GameModelNotifMessage, 1> {
 public:
  explicit GameModelNotifMailbox(PostOffice* postOffice);
  ~GameModelNotifMailbox() override;
};

/// Commands and settings from the lobby to a game model.
class HERALD_API LobbyToGameMailBox : public MailBox<LobbyToGameMessage, 1> {
 public:
  explicit LobbyToGameMailBox(PostOffice* postOffice = nullptr);
  ~LobbyToGameMailBox() override;
};

/// Changes of player notes.
class HERALD_API PlayerNotesSubscriberMailBox : public MailBox<PlayerNotesSubscriberMessage, 1> {
 public:
  explicit PlayerNotesSubscriberMailBox(PostOffice* postOffice = nullptr);
  ~PlayerNotesSubscriberMailBox() override;
};

/// Data and status of server connections.
class HERALD_API ServerViewMailbox : public MailBox<ServerViewMessage, 1> {
 public:
  explicit ServerViewMailbox(PostOffice* postOffice = nullptr);
  ~ServerViewMailbox() override;
};

/// What the user asks of the lobby's and the tournament lobbies' controller.
class HERALD_API TournamentLobbyControllerMailbox : public MailBox<TournamentLobbyControllerMessage, 1> {
 public:
  explicit TournamentLobbyControllerMailbox(PostOffice* postOffice);
  ~TournamentLobbyControllerMailbox() override;
};

}  // namespace Tessel
