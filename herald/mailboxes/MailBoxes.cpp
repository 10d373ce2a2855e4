#include <herald/mailboxes/MailBoxes.h>

namespace Tessel {

template class MailBox<BasicTexasStatControllerMessage, 1>;
BasicTexasStatControllerMessageMailBox::BasicTexasStatControllerMessageMailBox(PostOffice* postOffice)
    : MailBox(postOffice) {}
BasicTexasStatControllerMessageMailBox::~BasicTexasStatControllerMessageMailBox() = default;

template class MailBox<ClientMessage, 1>;
ClientMessageMailBox::ClientMessageMailBox(PostOffice* postOffice) : MailBox(postOffice) {}
ClientMessageMailBox::~ClientMessageMailBox() = default;

template class MailBox<GameModelNotifMessage, 1>;
GameModelNotifMailbox::GameModelNotifMailbox(PostOffice* postOffice) : MailBox(postOffice) {}
GameModelNotifMailbox::~GameModelNotifMailbox() = default;

template class MailBox<LobbyToGameMessage, 1>;
LobbyToGameMailBox::LobbyToGameMailBox(PostOffice* postOffice) : MailBox(postOffice) {}
LobbyToGameMailBox::~LobbyToGameMailBox() = default;

template class MailBox<PlayerNotesSubscriberMessage, 1>;
PlayerNotesSubscriberMailBox::PlayerNotesSubscriberMailBox(PostOffice* postOffice) : MailBox(postOffice) {}
PlayerNotesSubscriberMailBox::~PlayerNotesSubscriberMailBox() = default;

template class MailBox<ServerViewMessage, 1>;
ServerViewMailbox::ServerViewMailbox(PostOffice* postOffice) : MailBox(postOffice) {}
ServerViewMailbox::~ServerViewMailbox() = default;

template class MailBox<TournamentLobbyControllerMessage, 1>;
TournamentLobbyControllerMailbox::TournamentLobbyControllerMailbox(PostOffice* postOffice) : MailBox(postOffice) {}
TournamentLobbyControllerMailbox::~TournamentLobbyControllerMailbox() = default;

}  // namespace Tessel
