#pragma once
#include <herald/platform/keystone/Export.h>

namespace Tessel {

/// What the lobby shows under one of its nodes: a game or a tournament.
class HERALD_API LobbyNodeInterface {
 public:
  virtual ~LobbyNodeInterface();
  /// A new copy, of the same class, that the caller owns.
  [[nodiscard]] virtual LobbyNodeInterface* cloneNode() const = 0;
  /// The id of the game or tournament.
  virtual int getLobbyNodeId() const = 0;

 protected:
  LobbyNodeInterface() = default;
  LobbyNodeInterface(const LobbyNodeInterface&) = default;
  LobbyNodeInterface(LobbyNodeInterface&&) = default;
  LobbyNodeInterface& operator=(const LobbyNodeInterface&) = default;
  LobbyNodeInterface& operator=(LobbyNodeInterface&&) = default;
};

}  // namespace Tessel
