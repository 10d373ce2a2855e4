#include <herald/dispatch/ConnectingClientMessageHandler.h>

namespace Tessel {

ConnectingClientMessageHandler::~ConnectingClientMessageHandler() = default;

}  // namespace Tessel
