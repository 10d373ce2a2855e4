#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

enum class ClientSatInStatus : std::int8_t { NEW_SIT_IN = 0, RESITTING_IN = 1 };

/// A player sits in, for the first time or again.
class HERALD_API ClientSatInInfo : public ReadableRecord<ClientSatInInfo> {
 public:
  ClientSatInInfo() = default;
  ClientSatInInfo(int playerId, ClientSatInStatus status);

  int getPlayerID() const { return playerId_; }
  bool isNewSitIn() const { return !resittingIn_; }
  bool isResittingIn() const { return resittingIn_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("resittingIn", self.resittingIn_);
  }

 private:
  std::int32_t playerId_ = -1;
  bool resittingIn_ = false;
};

}  // namespace Tessel
