#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/TsArray.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A VIP player and where the player is.
class HERALD_API VIPPlayerInfo : public ReadableRecord<VIPPlayerInfo> {
 public:
  int getPlayerId() const { return playerId_; }
  bool isPlaying() const { return isPlaying_; }
  /// 1 for a game with an id; other values are the server's.
  int getGameKind() const { return gameKind_; }
  /// -1 unless the kind of game is 1.
  int getGameId() const { return gameId_; }
  int getVIPType() const { return vipType_; }
  std::wstring getVIPName() const { return vipName_.getString(); }
  /// The meaning of the value is the server's.
  int getVIPStatus() const { return vipStatus_; }

  /// The numbers, from 1 to 3, of the icons to show beside the player; 1 when the type names none.
  TsArray<int> getVIPIcons() const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("isPlaying", self.isPlaying_);
    fields("gameKind", self.gameKind_);
    fields.onlyIf(equals("gameKind", self.gameKind_, KIND_WITH_GAME_ID), "gameId", self.gameId_);
    fields("vipType", self.vipType_);
    fields("vipName", self.vipName_);
    fields("vipStatus", self.vipStatus_);
  }

 private:
  static constexpr int KIND_WITH_GAME_ID = 1;
  static constexpr int FIRST_ICON_BIT_IN_STATUS = 1;
  static constexpr int LAST_ICON_BIT_IN_STATUS = 3;

  std::int32_t playerId_ = -1;
  bool isPlaying_ = false;
  std::int8_t gameKind_ = -1;
  std::int32_t gameId_ = -1;
  std::int32_t vipType_ = 0;
  Text vipName_;
  std::int32_t vipStatus_ = -1;
};

}  // namespace Tessel
