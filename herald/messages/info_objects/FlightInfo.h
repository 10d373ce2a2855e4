#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// A flight: one of the tournaments whose survivors meet in a main event.
class HERALD_API FlightInfo : public ReadableRecord<FlightInfo> {
 public:
  int getMainEventId() const { return mainEventId_; }
  /// The players that are in the main event already.
  int getNumPlayersInMainEvent() const { return numPlayers_; }
  void setNumPlayersInMainEvent(int numPlayers) { numPlayers_ = numPlayers; }
  /// In milliseconds.
  std::int64_t getFlightDurationMs() const { return durationMs_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("mainEventId", self.mainEventId_);
    fields("numPlayers", self.numPlayers_);
    fields("durationMs", self.durationMs_);
  }

 private:
  std::int32_t mainEventId_ = -1;
  std::int32_t numPlayers_ = -1;
  std::int64_t durationMs_ = -1;
};

}  // namespace Tessel
