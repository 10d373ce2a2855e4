#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// A player may change cards.
class HERALD_API ChangeCardsInfo : public ReadableRecord<ChangeCardsInfo> {
 public:
  int getSeat() const { return seat_; }
  /// In seconds, here and below.
  int getTimeLeft() const { return timeLeft_; }
  int getTotalTime() const { return totalTime_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("seat", self.seat_);
    fields("timeLeft", self.timeLeft_);
    fields("totalTime", self.totalTime_);
  }

 private:
  std::int8_t seat_ = -1;
  std::int8_t timeLeft_ = -1;
  std::int8_t totalTime_ = -1;
};

}  // namespace Tessel
