#pragma once
#include <herald/messages/info_objects/PlayerActionsInfo.h>
#include <herald/platform/keystone/List.h>

#include <cstdint>

namespace Tessel {

/// Who is asked to act, and what each may do.
class HERALD_API BetRequestInfo : public ReadableRecord<BetRequestInfo> {
 public:
  int getNrReqSeats() const { return static_cast<int>(requestedSeats_.size()); }
  /// An index outside 0 to the count - 1 throws `OutOfBoundsException`, here and below.
  int getReqSeat(int i) const;
  bool isSeatRequested(int seat) const;

  int getNrPlayerActionsInfos() const { return static_cast<int>(playerActions_.size()); }
  /// The record stays this object's.
  const PlayerActionsInfo* getPlayerActionsInfo(int i) const;
  /// The first for that seat, or null. The record stays this object's.
  const PlayerActionsInfo* getPlayerActionsInfoForSeat(int seat) const;

  /// In seconds, here and below.
  int getTotalTime() const { return totalTime_; }
  int getTimeLeft() const { return timeLeft_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template countedOrNone<std::int8_t>("requestedSeats", self.requestedSeats_);
    fields.template infoArray<std::int8_t>("playerActions", self.playerActions_);
    fields("totalTime", self.totalTime_);
    fields("timeLeft", self.timeLeft_);
  }

 private:
  List<std::int8_t> requestedSeats_;
  List<PlayerActionsInfo> playerActions_;
  std::int8_t totalTime_ = -1;
  std::int8_t timeLeft_ = -1;
};

}  // namespace Tessel
