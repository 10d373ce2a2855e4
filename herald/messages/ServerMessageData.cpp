#include <herald/messages/ServerMessageData.h>

namespace Tessel {

ServerMessageData::~ServerMessageData() = default;

}  // namespace Tessel
