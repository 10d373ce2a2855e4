#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

enum class ClientSatOutStatus : std::int8_t { NOT_ENOUGH_FUNDS = 0, WILL_BE_SAT_OUT = 1 };

/// A player sits out, or will.
class HERALD_API ClientSatOutInfo : public ReadableRecord<ClientSatOutInfo> {
 public:
  ClientSatOutInfo() = default;
  ClientSatOutInfo(int playerId, ClientSatOutStatus status)
      : playerId_(playerId), status_(static_cast<std::int8_t>(status)) {}

  int getPlayerID() const { return playerId_; }
  bool isNotEnoughFunds() const { return getStatus() == ClientSatOutStatus::NOT_ENOUGH_FUNDS; }
  bool isWillBeSatOut() const { return getStatus() == ClientSatOutStatus::WILL_BE_SAT_OUT; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields.template named<ClientSatOutStatus>("status", self.status_);
  }

 private:
  ClientSatOutStatus getStatus() const { return static_cast<ClientSatOutStatus>(status_); }

  std::int32_t playerId_ = -1;
  std::int8_t status_ = -1;
};

}  // namespace Tessel
