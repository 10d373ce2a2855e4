#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/JoinRequestStatus.h>
#include <herald/messages/info_objects/PGSettingsInfoList.h>
#include <herald/messages/info_objects/PlayerInfo.h>
#include <herald/messages/info_objects/PokerGameInfo.h>
#include <herald/messages/info_objects/TesselInt.h>
#include <herald/wire/Text.h>

// Private tables, as the server tells of them.

namespace Tessel {

/// The settings with which a private table can be created.
class HERALD_API PGGamesSettingsList
    : public RecordMessage<PGGamesSettingsList, PGSettingsInfoList, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[PGGamesSettingsList: %s]";
  const PGSettingsInfoList& getSettingsList() const { return body(); }
};

/// The private table has been created.
class HERALD_API PGCreateGameReply : public RecordMessage<PGCreateGameReply, PokerGameInfo, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[PGCreateGameReply: %s]";
  const PokerGameInfo& getPokerGameInfo() const { return body(); }
};

/// A request to join was not answered in time; what the id names is the server's.
class HERALD_API PGPlayerReqTimedOut : public RecordMessage<PGPlayerReqTimedOut, TesselInt, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[PGPlayerReqTimedOut: %d]";
  static constexpr auto FIELD = "id";
  int getId() const { return body().getValue(); }
};

/// There is a new moderator; what the id names is the server's.
class HERALD_API PGPromotedModerator : public RecordMessage<PGPromotedModerator, TesselInt, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[PGPromotedModerator: %d]";
  static constexpr auto FIELD = "id";
  int getId() const { return body().getValue(); }
};

/// The answer to this client's own request to join.
class HERALD_API PGJoinRequestReply : public RecordMessage<PGJoinRequestReply, JoinRequestStatus> {
 public:
  static constexpr auto TEXT = L"[PGJoinRequestReply: %s";
  const JoinRequestStatus& getStatus() const { return body(); }
};

/// A player asks to join this client's table; the answer is `PGPlayerJoinRequestReply`.
class HERALD_API PGPlayerReqToJoinGame : public WireMessage<PGPlayerReqToJoinGame> {
 public:
  const PlayerInfo& getPlayerInfo() const { return player_; }
  std::wstring getRequestText() const { return requestText_.getString(); }

  std::wstring toDebugString() const override;

  /// The text is read also when the player could not be, which is what the read then answers.
  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("player", self.player_);
    fields.always("requestText", self.requestText_);
  }

 private:
  PlayerInfo player_;
  Text requestText_;
};

}  // namespace Tessel
