#include <herald/dispatch/AbstractClientMessageHandler.h>
#include <herald/messages/ClientMessage.h>

namespace Tessel {

// These two stand here, since the handler interface knows messages by name only.

void AbstractClientMessageHandler::handle(AbstractClientMessageHandler& handler, ClientMessage* message) {
  handle(handler, std::unique_ptr<ClientMessage>(message));
}

void AbstractClientMessageHandler::handle(AbstractClientMessageHandler& handler,
                                          std::unique_ptr<ClientMessage> message) {
  message->handle(handler);
}

}  // namespace Tessel
