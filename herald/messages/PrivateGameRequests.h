#pragma once
#include <herald/messages/WireRequest.h>
#include <herald/messages/info_objects/JoinRequestStatus.h>
#include <herald/messages/info_objects/PGSettings.h>
#include <herald/messages/info_objects/PlayerInfo.h>
#include <herald/wire/Text.h>

#include <cstdint>
#include <utility>

// Private tables, as the client asks for them.

namespace Tessel {

/// Asks the moderator of a private table for a seat.
class HERALD_API PGJoinGameReq : public WireRequest<PGJoinGameReq, 520> {
 public:
  PGJoinGameReq() = default;
  PGJoinGameReq(PlayerInfo player, std::wstring_view requestText)
      : player_(std::move(player)), requestText_(requestText) {}

  const PlayerInfo& getPlayerInfo() const { return player_; }
  std::wstring getRequestText() const { return requestText_.getString(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("player", self.player_);
    fields("requestText", self.requestText_);
  }

 private:
  PlayerInfo player_;
  Text requestText_;
};

class HERALD_API PGGamesSettingsListReq : public EmptyRequest<PGGamesSettingsListReq, 540> {
 public:
  static constexpr auto TEXT = L"[PGGamesSettingsListReq]";
};

class HERALD_API PGCreateGameReq : public RecordRequest<PGCreateGameReq, 541, PGSettings> {
 public:
  static constexpr auto TEXT = L"[PGCreateGameReq: %s]";
  PGCreateGameReq() = default;
  explicit PGCreateGameReq(const PGSettings& settings) : RecordRequest(settings) {}
  const PGSettings& getSettings() const { return body(); }
};

/// Takes `PGJoinGameReq` back.
class HERALD_API PGPlayerCancelJoinGameGameReq : public EmptyRequest<PGPlayerCancelJoinGameGameReq, 543> {
 public:
  static constexpr auto TEXT = L"[PGPlayerCancelJoinGameGameReq]";
};

/// The answer to a player who asks to join this client's table.
class HERALD_API PGPlayerJoinRequestReply : public WireRequest<PGPlayerJoinRequestReply, 545> {
 public:
  PGPlayerJoinRequestReply() = default;
  PGPlayerJoinRequestReply(JoinRequestStatus status, int playerId) : status_(std::move(status)), playerId_(playerId) {}

  const JoinRequestStatus& getStatus() const { return status_; }
  int getPlayerId() const { return playerId_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("status", self.status_);
    fields("playerId", self.playerId_);
  }

 private:
  JoinRequestStatus status_;
  std::int32_t playerId_ = -1;
};

}  // namespace Tessel
