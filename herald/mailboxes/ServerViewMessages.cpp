#include <herald/mailboxes/MessageKindOperations.h>
#include <herald/mailboxes/ServerViewMessages.h>

namespace Tessel {

ServerViewMessage::~ServerViewMessage() = default;
ServerViewMessageHandler::~ServerViewMessageHandler() = default;
ServerViewInterface::~ServerViewInterface() = default;

int ServerViewMessage::getConnectionId() const { return connectionId_; }

template class MessageKind<ConnectionStatusMessage, ServerViewMessage>;
template class MessageKind<ClientDataMessage, ServerViewMessage>;

}  // namespace Tessel
