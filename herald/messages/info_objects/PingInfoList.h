#pragma once
#include <herald/messages/info_objects/InfoList.h>
#include <herald/messages/info_objects/PingInfoInfo.h>

namespace Tessel {

/// The connections of the players of a game.
class HERALD_API PingInfoList : public ReadableRecord<PingInfoList> {
 public:
  int getNrInfos() const { return infos_.getNrInfos(); }
  /// An index outside 0 to `getNrInfos()` - 1 throws `OutOfBoundsException`.
  const PingInfoInfo& getPingInfo(int i) const { return infos_[i]; }
  int getGameId() const { return gameId_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("infos", self.infos_);
    fields("gameId", self.gameId_);
  }

 private:
  InfoList<PingInfoInfo> infos_;
  std::int32_t gameId_ = -1;
};

}  // namespace Tessel
