#include <herald/mailboxes/LobbyToGameMessages.h>
#include <herald/mailboxes/MessageKindOperations.h>

namespace Tessel {

LobbyToGameMessage::~LobbyToGameMessage() = default;
LobbyToGameMessageHandler::~LobbyToGameMessageHandler() = default;

void LobbyToGameMessageHandler::handle(LobbyToGameMessageHandler* handler, LobbyToGameMessage* message) {
  handle(handler, std::unique_ptr<LobbyToGameMessage>(message));
}

void LobbyToGameMessageHandler::handle(LobbyToGameMessageHandler* handler,
                                       std::unique_ptr<LobbyToGameMessage> message) {
  message->handle(handler);
}

template class PointerMessageKind<UserSettingsUpdate, LobbyToGameMessage>;
template class PointerMessageKind<ShutdownGameModel, LobbyToGameMessage>;
template class PointerMessageKind<BringTableToTop, LobbyToGameMessage>;
template class PointerMessageKind<LobbySettingsMessage, LobbyToGameMessage>;

}  // namespace Tessel
