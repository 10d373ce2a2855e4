#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/platform/tableau/TournamentLevelInformation.h>

#include <cstdint>

namespace Tessel {

/// A blind level. It lasts a time or a number of hands: -1 says that it is not measured that way, -1 for both that it
/// has no end.
class HERALD_API TourLevelInfo : public ReadableRecord<TourLevelInfo> {
 public:
  int getCurrentLevel() const { return newLevel_; }
  bool isDurationInfinite() const { return durationMs_ == -1 && numHands_ == -1; }
  bool isDurationInMs() const { return durationMs_ != -1; }
  std::int64_t getMsAtThisLevel() const { return durationMs_; }
  int getNumHandsAtThisLevel() const { return numHands_; }
  Money getSmallBlind() const { return smallBlind_.getMoney(); }
  Money getBigBlind() const { return bigBlind_.getMoney(); }
  Money getAnte() const { return ante_.getMoney(); }
  bool usesBlinds() const { return smallBlind_.getAmount() > 0; }
  bool usesAnte() const { return ante_.getAmount() > 0; }

  /// The level as the poker domain knows it. A duration in milliseconds counts before one in hands.
  TournamentLevelInformation getInfo() const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("newLevel", self.newLevel_);
    fields("durationMs", self.durationMs_);
    fields("numHands", self.numHands_);
    fields("smallBlind", self.smallBlind_);
    fields("bigBlind", self.bigBlind_);
    fields("ante", self.ante_);
  }

 private:
  std::int16_t newLevel_ = -1;
  std::int64_t durationMs_ = -1;
  std::int16_t numHands_ = -1;
  MoneyAmount smallBlind_;
  MoneyAmount bigBlind_;
  MoneyAmount ante_;
};

}  // namespace Tessel
