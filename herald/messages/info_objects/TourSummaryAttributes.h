#pragma once
#include <herald/messages/info_objects/TesselIntBitMask.h>

namespace Tessel {

/// What kind of tournament it is and how it is entered.
class HERALD_API TourSummaryAttributes : public ReadableWritableRecord<TourSummaryAttributes, TesselIntBitMask> {
 public:
  /// The numbers of the bits.
  enum Bit : int {
    SIT_AND_GO = 0,
    FLIGHT = 1,
    MAIN_EVENT = 2,
    REQUIRES_PASSWORD = 3,
    LEAGUE = 4,
    REBUYS = 5,
    NO_CLIENT_SIGNUP = 6,
    NO_WEB_SIGNUP = 7,
    VIP = 8
  };

  ~TourSummaryAttributes() override;
};

}  // namespace Tessel
