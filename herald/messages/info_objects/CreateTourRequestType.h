#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/tableau/GameType.h>
#include <herald/platform/tableau/LimitType.h>
#include <herald/platform/tableau/TournamentType.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// The user's choices for a private tournament.
class HERALD_API CreateTourRequestType : public WritableRecord<CreateTourRequestType> {
 public:
  CreateTourRequestType() = default;
  /// What the numbered values stand for is between the client and the server. Each number keeps the low bits that its
  /// field is wide: 8 of values 4, 6, 8 and 9, 16 of values 5, 7 and 11.
  CreateTourRequestType(Tourney::TournamentType tournamentType, GameTypes::AllowedGameType gameType,
                        LimitTypes::AllowedLimitType limitType, int value4, int value5, int value6, int value7,
                        int value8, int value9, std::int64_t value10, int value11, int value12,
                        std::wstring_view text13, std::wstring_view text14);

  std::wstring toDebugString() const override;

  // Either text may be a password.
  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tournamentType", self.tournamentType_);
    fields("gameType", self.gameType_);
    fields("limitType", self.limitType_);
    fields("value4", self.value4_);
    fields("value5", self.value5_);
    fields("value6", self.value6_);
    fields("value7", self.value7_);
    fields("value8", self.value8_);
    fields("value9", self.value9_);
    fields("value10", self.value10_);
    fields("value11", self.value11_);
    fields("value12", self.value12_);
    fields.secret("text13", self.text13_);
    fields.secret("text14", self.text14_);
  }

 private:
  std::int8_t tournamentType_ = -1;
  std::int8_t gameType_ = -1;
  std::int8_t limitType_ = -1;
  std::int8_t value4_ = -1;
  std::int16_t value5_ = -1;
  std::int8_t value6_ = -1;
  std::int16_t value7_ = -1;
  std::int8_t value8_ = -1;
  std::int8_t value9_ = -1;
  std::int64_t value10_ = -1;
  std::int16_t value11_ = -1;
  std::int32_t value12_ = -1;
  Text text13_;
  Text text14_;
};

}  // namespace Tessel
