#include <herald/dispatch/AbstractClientMessageHandler.h>

namespace Tessel {

AbstractClientMessageHandler::~AbstractClientMessageHandler() = default;

}  // namespace Tessel
