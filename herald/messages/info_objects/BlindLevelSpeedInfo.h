#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/TesselByte.h>
#include <herald/platform/tableau/BlindLevelSpeed.h>

#include <cstdint>

namespace Tessel {

/// A speed of the blinds that a private tournament may have, with its starting chips.
class HERALD_API BlindLevelSpeedInfo : public ReadableRecord<BlindLevelSpeedInfo> {
 public:
  BlindLevelSpeedInfo() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit BlindLevelSpeedInfo(ByteStream& in);

  int getId() const { return id_; }
  const BlindLevelSpeed& getBlindLevelSpeed() const;
  Money getStartingChipStack() const { return startingChipStack_.getMoney(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("id", self.id_);
    fields("blindSpeed", self.blindSpeed_);
    fields("startingChipStack", self.startingChipStack_);
  }

 private:
  std::int16_t id_ = -1;
  TesselByte blindSpeed_;
  MoneyAmount startingChipStack_;
};

}  // namespace Tessel
