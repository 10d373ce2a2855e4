#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// Why a player is slow; the values are the server's.
enum class SlowPlayerStatus : std::int8_t {};

class HERALD_API SlowPlayerInfo : public ReadableRecord<SlowPlayerInfo> {
 public:
  SlowPlayerInfo() = default;
  SlowPlayerInfo(int playerId, SlowPlayerStatus status)
      : playerId_(playerId), status_(static_cast<std::int8_t>(status)) {}

  int getPlayerID() const { return playerId_; }
  SlowPlayerStatus getStatus() const { return static_cast<SlowPlayerStatus>(status_); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("status", self.status_);
  }

 private:
  std::int32_t playerId_ = -1;
  std::int8_t status_ = -1;
};

}  // namespace Tessel
