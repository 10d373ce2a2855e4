#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/ClientSatInInfo.h>
#include <herald/messages/info_objects/ClientSatOutInfo.h>
#include <herald/messages/info_objects/PigIDInfo.h>
#include <herald/messages/info_objects/PlayerInGameInfo.h>
#include <herald/messages/info_objects/PlayerSatDownInfo.h>
#include <herald/messages/info_objects/ReserveMoneyReplyInfo.h>
#include <herald/messages/info_objects/SitDownReplyInfo.h>
#include <herald/messages/info_objects/SlowPlayerInfo.h>
#include <herald/messages/info_objects/TesselInt.h>

// Seats and players.

namespace Tessel {

class HERALD_API ClientSatIn : public RecordMessage<ClientSatIn, ClientSatInInfo> {
 public:
  static constexpr auto TEXT = L"[ClientSatIn: %s]";
  const ClientSatInInfo& getInfo() const { return body(); }
};

class HERALD_API ClientSatOut : public RecordMessage<ClientSatOut, ClientSatOutInfo> {
 public:
  static constexpr auto TEXT = L"[ClientSatOut: %s";
  const ClientSatOutInfo& getInfo() const { return body(); }
};

/// A player will sit in with the next hand.
class HERALD_API ClientWaitingToSitIn : public RecordMessage<ClientWaitingToSitIn, TesselInt> {
 public:
  static constexpr auto TEXT = L"[ClientWaitingToSitIn: PlayerID: %d";
  static constexpr auto FIELD = "playerId";
  int getPlayerId() const { return body().getValue(); }
};

/// The user will sit out with the next hand.
class HERALD_API ClientWaitingToSitOut : public EmptyMessage<ClientWaitingToSitOut> {
 public:
  static constexpr auto TEXT = L"[ClientWaitingToSitOut]";
};

/// The user will sit in with the next big blind.
class HERALD_API ClientSitInWaitingBigBlind : public EmptyMessage<ClientSitInWaitingBigBlind> {
 public:
  static constexpr auto TEXT = L"[ClientSitInWaitingBigBlind]";
};

/// A player takes long to act.
class HERALD_API ClientSlowPlayer : public RecordMessage<ClientSlowPlayer, SlowPlayerInfo> {
 public:
  static constexpr auto TEXT = L"[ClientSlowPlayer: %s";
  const SlowPlayerInfo& getSlowPlayerInfo() const { return body(); }
};

class HERALD_API ClientSlowPlayerBack : public RecordMessage<ClientSlowPlayerBack, TesselInt> {
 public:
  static constexpr auto TEXT = L"[ClientSlowPlayerBack: PlayerId: %li]";
  static constexpr auto FIELD = "playerId";
  int getPlayerId() const { return body().getValue(); }
};

class HERALD_API ClientPlayerTimeout : public RecordMessage<ClientPlayerTimeout, TesselInt> {
 public:
  static constexpr auto TEXT = L"[ClientPlayerTimeout: PlayerID: %li]";
  static constexpr auto FIELD = "playerId";
  int getPlayerID() const { return body().getValue(); }
};

/// The user's connection is slow.
class HERALD_API PlayerSlowConnection : public EmptyMessage<PlayerSlowConnection> {
 public:
  static constexpr auto TEXT = L"[PlayerSlowConnection]";
};

/// A player has taken a seat.
class HERALD_API PlayerSatDown : public RecordMessage<PlayerSatDown, PlayerSatDownInfo> {
 public:
  static constexpr auto TEXT = L"[PlayerSatDown: %s]";
  const PlayerSatDownInfo& getInfo() const { return body(); }
};

/// The answer to the user's request to sit down.
class HERALD_API SitDownReply : public RecordMessage<SitDownReply, SitDownReplyInfo> {
 public:
  static constexpr auto TEXT = L"[SitDownReply: %s]";
  const SitDownReplyInfo& getInfo() const { return body(); }
};

/// The answer to a player's request to take money to the table.
class HERALD_API ReserveMoneyReply : public RecordMessage<ReserveMoneyReply, ReserveMoneyReplyInfo> {
 public:
  static constexpr auto TEXT = L"[ReserveMoneyReply: ReserveMoneyReplyInfo: %s]";
  const ReserveMoneyReplyInfo& getReplyInfo() const { return body(); }
};

/// The user's money comes to the table after the hand.
class HERALD_API ReserveMoneyReplyPending : public EmptyMessage<ReserveMoneyReplyPending> {
 public:
  static constexpr auto TEXT = L"[ReserveMoneyReplyPending]";
};

/// A player has come to the table.
class HERALD_API PlayerJoined : public RecordMessage<PlayerJoined, PlayerInGameInfo> {
 public:
  static constexpr auto TEXT = L"[PlayerJoined: %s]";
  const PlayerInGameInfo& getPlayerInGameInfo() const { return body(); }
};

/// A player has left.
class HERALD_API PlayerLeft : public RecordMessage<PlayerLeft, PigIDInfo, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[PlayerLeft: %s";
  const PigIDInfo& getPigIDInfo() const { return body(); }
};

/// A player has left the game.
class HERALD_API PlayerIGLeft : public RecordMessage<PlayerIGLeft, TesselInt> {
 public:
  static constexpr auto TEXT = L"[PlayerIGLeft]";
  static constexpr auto FIELD = "playerId";
  int getPlayerId() const { return body().getValue(); }
};

/// A player has given up the seat and stays at the table.
class HERALD_API PlayerStandUp : public RecordMessage<PlayerStandUp, PigIDInfo, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[PlayerStandUp: nick=%s]";
  const PigIDInfo& getPigIDInfo() const { return body(); }
};

}  // namespace Tessel
