#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A player in a game, by nickname.
class HERALD_API PigIDInfo : public ReadableRecord<PigIDInfo> {
 public:
  std::wstring getNickName() const { return nickName_.getString(); }
  int getGameId() const { return gameId_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("nickName", self.nickName_);
    fields("gameId", self.gameId_);
  }

 private:
  Text nickName_;
  std::int32_t gameId_ = -1;
};

}  // namespace Tessel
