#pragma once
#include <herald/messages/info_objects/AmountInfo.h>
#include <herald/messages/info_objects/GameInfo.h>
#include <herald/platform/keystone/MoneyLimit.h>
#include <herald/platform/tableau/GameType.h>
#include <herald/platform/tableau/LimitType.h>
#include <herald/platform/tableau/LobbyNodeInterface.h>

namespace Tessel {

/// A poker game (table) of the lobby.
class HERALD_API PokerGameInfo : public ReadableRecord<PokerGameInfo, GameInfo>, public LobbyNodeInterface {
 public:
  /// 0 to 3; what they stand for is the server's.
  enum class GameSpeed : std::int8_t {};

  PokerGameInfo() = default;
  /// The types are not null. The limits are in the monetary unit of the game.
  PokerGameInfo(const GameInfo& game, const GameType* gameType, const LimitType* limitType, std::int64_t lowerLimit,
                std::int64_t upperLimit, bool isPrivate, bool isModerated, GameSpeed speed, bool isBootable,
                bool isNetworkTable);

  /// Never null; lives as long as the process.
  const GameType* getGameType() const;
  /// Never null; lives as long as the process.
  const LimitType* getLimitType() const;

  GameSpeed getGameSpeed() const { return static_cast<GameSpeed>(tableFlags_ & SPEED_MASK); }
  bool isPrivate() const { return hasFlag(PRIVATE_BIT); }
  bool isModerated() const { return hasFlag(MODERATED_BIT); }
  bool iIsBootable() const { return hasFlag(BOOTABLE_BIT); }
  bool isNetworkTable() const { return hasFlag(NETWORK_BIT); }

  /// The limits in the currency that `MoneyModel` now knows for the game's monetary unit; in a default one otherwise.
  MoneyLimit getLimits() const;

  [[nodiscard]] LobbyNodeInterface* cloneNode() const override;
  int getLobbyNodeId() const override { return getId(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    GameInfo::wire(self, fields);
    fields.template named<GameTypes::AllowedGameType>("gameType", self.gameType_);
    fields.template named<LimitTypes::AllowedLimitType>("limitType", self.limitType_);
    fields("lowerLimit", self.lowerLimit_);
    fields("upperLimit", self.upperLimit_);
    fields("tableFlags", self.tableFlags_);
  }

 private:
  static constexpr int SPEED_MASK = 3;
  static constexpr int PRIVATE_BIT = 2;
  static constexpr int MODERATED_BIT = 3;
  static constexpr int BOOTABLE_BIT = 4;
  static constexpr int NETWORK_BIT = 5;

  bool hasFlag(int bit) const;

  Amount lowerLimit_;
  Amount upperLimit_;
  std::int8_t gameType_ = -1;
  std::int8_t limitType_ = -1;
  std::int8_t tableFlags_ = 0;
};

}  // namespace Tessel
