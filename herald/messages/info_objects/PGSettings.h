#pragma once
#include <herald/messages/info_objects/PokerGameInfo.h>
#include <herald/messages/info_objects/TsString.h>

namespace Tessel {

/// What a player chooses for the private table that is to be created.
class HERALD_API PGSettings : public WritableRecord<PGSettings> {
 public:
  /// Who may join; the values are the server's.
  enum class JoinType : std::int8_t {};

  PGSettings() = default;
  PGSettings(int settingId, int maxNumPlayers, JoinType joinType, TsString description, PokerGameInfo::GameSpeed speed);

  int getSettingId() const { return settingId_; }
  int getMaxNumPlayers() const { return maxNumPlayers_; }
  JoinType getJoinType() const { return static_cast<JoinType>(joinType_); }
  const TsString& getDescription() const { return description_; }
  PokerGameInfo::GameSpeed getSpeed() const { return static_cast<PokerGameInfo::GameSpeed>(speed_); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("settingId", self.settingId_);
    fields("maxNumPlayers", self.maxNumPlayers_);
    fields("joinType", self.joinType_);
    fields("description", self.description_);
    fields("speed", self.speed_);
  }

 private:
  std::int32_t settingId_ = -1;
  std::int8_t maxNumPlayers_ = -1;
  std::int8_t joinType_ = -1;
  TsString description_;
  std::int8_t speed_ = -1;
};

}  // namespace Tessel
