#include <herald/platform/tableau/LobbyNodeInterface.h>

namespace Tessel {

LobbyNodeInterface::~LobbyNodeInterface() = default;

}  // namespace Tessel
