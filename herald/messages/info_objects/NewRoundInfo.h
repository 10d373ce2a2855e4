#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/List.h>

#include <cstdint>

namespace Tessel {

/// A new hand, and which seats play it. Without players it cannot be read.
class HERALD_API NewRoundInfo : public ReadableRecord<NewRoundInfo> {
 public:
  NewRoundInfo() = default;
  explicit NewRoundInfo(int handNumber) : handNumber_(handNumber) {}

  int getHandNumber() const { return handNumber_; }
  int getNrOfPlayers() const { return nrOfPlayers_; }
  /// The index is not tested: it must lie in 0 to `getNrOfPlayers()` - 1.
  bool getPlayer(int i) const { return players_[static_cast<std::size_t>(i)]; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("handNumber", self.handNumber_);
    fields("nrOfPlayers", self.nrOfPlayers_);
    fields.onRead(self, &NewRoundInfo::hasPlayers);
    fields.items("players", self.players_, CountFrom("nrOfPlayers", self.nrOfPlayers_));
  }

 private:
  bool hasPlayers() const { return nrOfPlayers_ > 0; }

  std::int32_t handNumber_ = -1;
  std::int32_t nrOfPlayers_ = -1;
  List<bool> players_;
};

}  // namespace Tessel
