#pragma once
#include <herald/messages/WireRequest.h>
#include <herald/messages/info_objects/TesselBool.h>
#include <herald/messages/info_objects/TesselInt.h>

// The user's answers to offers of rebuys and add-ons.

namespace Tessel {

/// Takes or declines what a `TournamentRebuyQueryMsg` offered.
class HERALD_API TournamentRebuyReplyMsg : public ImprovedRequest<TournamentRebuyReplyMsg, 209> {
 public:
  TournamentRebuyReplyMsg() = default;
  TournamentRebuyReplyMsg(int tourId, bool accept) : tourId_(tourId), accept_(accept) {}

  int getTournamentId() const { return tourId_.getValue(); }
  bool isAccepted() const { return accept_.getValue(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tourId", self.tourId_);
    fields("accept", self.accept_);
  }

 private:
  TesselInt tourId_;
  TesselBool accept_;
};

}  // namespace Tessel
