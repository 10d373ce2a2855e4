#pragma once
#include <herald/messages/info_objects/TesselBool.h>
#include <herald/messages/info_objects/TesselInt.h>

#include <cstdint>

namespace Tessel {

/// How long the rebuy period still runs, and how many rebuys the user has left.
class HERALD_API TourRebuyNotification : public ReadableRecord<TourRebuyNotification> {
 public:
  /// In milliseconds; negative when the period is over.
  std::int64_t getRebuyPeriodMsRemaining() const { return duration_; }
  bool hasRebuyPeriodEnded() const { return duration_ < 0; }
  bool isAddon() const { return isAddon_.getValue(); }
  int getNumberOfRebuysRemaining() const { return nrRebuysRemaining_.getValue(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("duration", self.duration_);
    fields("isAddon", self.isAddon_);
    fields("nrRebuysRemaining", self.nrRebuysRemaining_);
  }

 private:
  std::int64_t duration_ = -1;
  TesselBool isAddon_;
  TesselInt nrRebuysRemaining_;
};

}  // namespace Tessel
