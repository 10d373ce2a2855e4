#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/JoinRequest.h>
#include <herald/messages/info_objects/LobbyInfo.h>
#include <herald/messages/info_objects/PokerGameInfo.h>

// Joining lobbies, games and waiting lists.

namespace Tessel {

class HERALD_API JoinLobbyFailed : public RecordMessage<JoinLobbyFailed, JoinRequest, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[JoinLobbyFailed: %s]";
  const JoinRequest& getJoinRequest() const { return body(); }
};

class HERALD_API JoinGameFailed : public RecordMessage<JoinGameFailed, JoinRequest, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[JoinGameFailed: %s]";
  const JoinRequest& getJoinRequest() const { return body(); }
};

/// The player is on the waiting list.
class HERALD_API JoinWaitingOk : public RecordMessage<JoinWaitingOk, LobbyInfo, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[JoinWaitingOk: %s]";
  const LobbyInfo& getLobbyInfo() const { return body(); }
};

class HERALD_API JoinWaitingFail : public RecordMessage<JoinWaitingFail, JoinRequest, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[JoinWaitingFail: %s]";
  const JoinRequest& getJoinRequest() const { return body(); }
};

/// A seat is free for the player who waited.
class HERALD_API JoinAvailable : public RecordMessage<JoinAvailable, PokerGameInfo, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[JoinAvailable: %s]";
  const PokerGameInfo& getPokerGameInfo() const { return body(); }
};

}  // namespace Tessel
