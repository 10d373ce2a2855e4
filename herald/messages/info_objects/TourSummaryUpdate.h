#pragma once
#include <herald/messages/info_objects/PrizeStructureInfoUpdate.h>
#include <herald/messages/info_objects/TourSummaryAttributes.h>
#include <herald/platform/keystone/BitMasking.h>
#include <herald/platform/tableau/PlayerRegistrationStatus.h>
#include <herald/platform/tableau/TournamentStatus.h>

#include <cstdint>

namespace Tessel {

class TourSummary;

/// The values of a tournament that change.
class HERALD_API TourSummaryUpdate : public ReadableRecord<TourSummaryUpdate> {
 public:
  int getTournamentId() const { return tourId_; }
  /// The value of an `AllowedTournamentStatus`.
  int getStatus() const { return status_; }
  int getEntrants() const { return numEntrants_; }
  int getCurrentNumberOfPlayers() const { return currentNumPlayers_; }
  PrizeStructureInfoUpdate getPrizeStructureUpdate() const { return prizeStructureUpdate_; }
  bool hasStartTime() const { return startTime_ > -1; }
  /// In milliseconds since the beginning of 1970 UTC.
  std::int64_t getStartTimeMs() const { return startTime_; }
  /// -1 unless the tournament is a flight.
  int getNumberOfPlayersInMainEvent() const { return numPlayersInMainEvent_; }
  PlayerRegistrationStatus getRegistrationStatus() const { return PlayerRegistrationStatus{regStatus_}; }

  /// Brings the summary up to date; that of another tournament stays as it is.
  void update(TourSummary& summary) const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tourId", self.tourId_);
    fields("attributes", self.attributes_);
    fields.template named<AllowedTournamentStatus>("status", self.status_);
    fields("numEntrants", self.numEntrants_);
    fields("currentNumPlayers", self.currentNumPlayers_);
    fields("prizeStructureUpdate", self.prizeStructureUpdate_);
    fields("startTime", self.startTime_);
    fields.onlyIf(hasBit("attributes", self.attributes_, TourSummaryAttributes::FLIGHT), "numPlayersInMainEvent",
                  self.numPlayersInMainEvent_);
    fields.template named<PlayerRegistrationStatus>("regStatus", self.regStatus_);
  }

 private:
  bool hasAttribute(TourSummaryAttributes::Bit bit) const { return BitMasking::getBit(attributes_, bit); }
  bool isFlight() const { return hasAttribute(TourSummaryAttributes::FLIGHT); }

  std::int32_t tourId_ = -1;
  std::int32_t attributes_ = 0;
  std::int8_t status_ = -1;
  std::int32_t numEntrants_ = -1;
  std::int32_t currentNumPlayers_ = -1;
  PrizeStructureInfoUpdate prizeStructureUpdate_;
  std::int64_t startTime_ = -1;
  std::int32_t numPlayersInMainEvent_ = -1;
  std::int8_t regStatus_ = -1;
};

}  // namespace Tessel
