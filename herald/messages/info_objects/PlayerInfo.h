#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A player as others see one. A text that cannot be decoded ends the read.
class HERALD_API PlayerInfo : public ReadableWritableRecord<PlayerInfo> {
 public:
  PlayerInfo() = default;
  PlayerInfo(int id, std::wstring_view nickName, std::wstring_view city, int ping, int gameId,
             std::wstring_view teamName);

  int getId() const { return id_; }
  std::wstring getNickName() const { return nickName_.getString(); }
  std::wstring getCity() const { return city_.getString(); }
  /// In milliseconds.
  int getPing() const { return ping_; }
  int getGameID() const { return gameId_; }
  std::wstring getTeamName() const { return teamName_.getString(); }
  bool hasSalonPage() const;
  bool isVIP() const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("id", self.id_);
    fields.required("nickName", self.nickName_);
    fields.required("city", self.city_);
    fields("ping", self.ping_);
    fields("gameId", self.gameId_);
    fields("flags", self.flags_);
    fields.required("teamName", self.teamName_);
  }

 private:
  static constexpr int SALON_BIT = 0;
  static constexpr int VIP_BIT = 1;

  std::int32_t id_ = -1;
  Text nickName_;
  Text city_;
  std::int32_t ping_ = -1;
  std::int32_t gameId_ = -1;
  std::int8_t flags_ = 0;
  Text teamName_;
};

}  // namespace Tessel
