#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/AmountInfo.h>

#include <cstdint>

namespace Tessel {

/// A break is on. The message logs itself when it has been read.
class HERALD_API TourBreakInfo : public WireMessage<TourBreakInfo> {
 public:
  /// Of the break, in milliseconds.
  std::int64_t getRemainingMs() const { return remainingMs_; }
  int getNumberOfEntrants() const { return numberOfEntrants_; }
  int getNumberOfRemainingPlayers() const { return numberOfRemainingPlayers_; }
  /// In chips.
  std::int64_t getAverageChipStack() const { return averageChipStack_.getAmount(); }

  /// The size by which the protocol knows the message; its fields take 24 bytes.
  int size() const { return 32; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("remainingMs", self.remainingMs_);
    fields("numberOfEntrants", self.numberOfEntrants_);
    fields("numberOfRemainingPlayers", self.numberOfRemainingPlayers_);
    fields("averageChipStack", self.averageChipStack_);
    fields.onRead(self, &TourBreakInfo::log);
  }

 private:
  bool log() const;

  std::int64_t remainingMs_ = -1;
  std::int32_t numberOfEntrants_ = -1;
  std::int32_t numberOfRemainingPlayers_ = -1;
  Amount averageChipStack_;
};

}  // namespace Tessel
