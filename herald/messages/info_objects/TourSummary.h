#pragma once
#include <herald/messages/info_objects/FlightInfo.h>
#include <herald/messages/info_objects/LevelStructureInfo.h>
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/PrizeStructureInfo.h>
#include <herald/messages/info_objects/RebuyInfo.h>
#include <herald/messages/info_objects/TicketInfo.h>
#include <herald/messages/info_objects/TourSummaryAttributes.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/BitMasking.h>
#include <herald/platform/keystone/TsTime.h>
#include <herald/platform/tableau/GameType.h>
#include <herald/platform/tableau/LimitType.h>
#include <herald/platform/tableau/LobbyNodeInterface.h>
#include <herald/platform/tableau/PlayerRegistrationStatus.h>
#include <herald/platform/tableau/TournamentStatus.h>
#include <herald/platform/tableau/TournamentTicket.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// All that a tournament list or a tournament lobby shows about a tournament.
class HERALD_API TourSummary : public ReadableRecord<TourSummary>, public LobbyNodeInterface {
 public:
  [[nodiscard]] LobbyNodeInterface* cloneNode() const override;
  int getLobbyNodeId() const override;

  int getTournamentId() const { return tourId_; }

  bool isSitAndGo() const { return hasAttribute(TourSummaryAttributes::SIT_AND_GO); }
  /// Whether the survivors go on to a main event. Only then has the flight information been sent.
  bool isFlight() const { return hasAttribute(TourSummaryAttributes::FLIGHT); }
  /// Whether flights feed this tournament.
  bool isMainEvent() const { return hasAttribute(TourSummaryAttributes::MAIN_EVENT); }
  bool requiresPassword() const { return hasAttribute(TourSummaryAttributes::REQUIRES_PASSWORD); }
  bool isLeague() const { return hasAttribute(TourSummaryAttributes::LEAGUE); }
  /// Only then has the rebuy information been sent.
  bool hasRebuys() const { return hasAttribute(TourSummaryAttributes::REBUYS); }
  bool usesClientSignup() const { return !hasAttribute(TourSummaryAttributes::NO_CLIENT_SIGNUP); }
  bool usesWebSignup() const { return !hasAttribute(TourSummaryAttributes::NO_WEB_SIGNUP); }
  bool isVIP() const { return hasAttribute(TourSummaryAttributes::VIP); }

  const TournamentStatus& getTournamentStatus() const;
  void setCancelled();

  int getServerPort() const { return serverPort_; }
  std::wstring getNameShort() const { return nameShort_.getString(); }
  std::wstring getNameLong() const { return nameLong_.getString(); }
  std::wstring getDescription() const { return description_.getString(); }
  /// Never null.
  const LimitType* getLimitType() const;
  /// Never null.
  const GameType* getGameType() const;
  int getNumberOfEntrants() const { return numEntrants_; }
  int getMinimumNumberOfEntrants() const { return minNumEntrants_; }
  int getMaximumNumberOfEntrants() const { return maxNumEntrants_; }
  int getCurrentNumberOfPlayers() const { return currentNumPlayers_; }
  int getPlayersPerTable() const { return playersPerTable_; }
  TournamentTicket getTicketInformation() const;
  PrizeStructureInfo getPrizeStructure() const { return prizeStructure_; }
  Money getStartingChips() const { return startingChips_.getMoney(); }

  bool hasStartTime() const { return startTime_ > -1; }
  /// The beginning of 1970 when there is no start time.
  TsTime getStartTime() const;
  TsTime getWebRegistrationTime() const;
  TsTime getClientSignupTime() const;

  LevelStructureInfo getLevelStructure() const { return levelStructure_; }
  int getOwnerID() const { return ownerId_; }
  bool hasOwner() const { return ownerId_ != -1; }
  RebuyInfo getRebuyInfo() const { return rebuyInfo_; }
  FlightInfo getFlightInfo() const { return flightInfo_; }
  PlayerRegistrationStatus getRegistrationStatus() const { return PlayerRegistrationStatus{regStatus_}; }

  /// The monetary unit of the buy-in.
  int getGlobalMonetaryUnitId() const { return ticketInfo_.getBuyIn().getMonetaryUnitId(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tourId", self.tourId_);
    fields("attributes", self.attributes_);
    fields.template named<AllowedTournamentStatus>("status", self.status_);
    fields("serverPort", self.serverPort_);
    fields("nameShort", self.nameShort_);
    fields("nameLong", self.nameLong_);
    fields("description", self.description_);
    fields.template named<LimitTypes::AllowedLimitType>("limitType", self.limitType_);
    fields.template named<GameTypes::AllowedGameType>("gameType", self.gameType_);
    fields("numEntrants", self.numEntrants_);
    fields("minNumEntrants", self.minNumEntrants_);
    fields("maxNumEntrants", self.maxNumEntrants_);
    fields("currentNumPlayers", self.currentNumPlayers_);
    fields("playersPerTable", self.playersPerTable_);
    fields("ticketInfo", self.ticketInfo_);
    fields("prizeStructure", self.prizeStructure_);
    fields("startingChips", self.startingChips_);
    fields("startTime", self.startTime_);
    fields("webRegistrationTime", self.webRegistrationTime_);
    fields("clientRegistrationTime", self.clientRegistrationTime_);
    fields("levelStructure", self.levelStructure_);
    fields("ownerId", self.ownerId_);
    fields.onlyIf(hasBit("attributes", self.attributes_, TourSummaryAttributes::REBUYS), "rebuyInfo", self.rebuyInfo_);
    fields.onlyIf(hasBit("attributes", self.attributes_, TourSummaryAttributes::FLIGHT), "flightInfo",
                  self.flightInfo_);
    fields.template named<PlayerRegistrationStatus>("regStatus", self.regStatus_);
  }

 private:
  friend class TourSummaryUpdate;

  bool hasAttribute(TourSummaryAttributes::Bit bit) const { return BitMasking::getBit(attributes_, bit); }

  std::int32_t tourId_ = -1;
  std::int32_t attributes_ = 0;
  std::int8_t status_ = -1;
  std::int16_t serverPort_ = -1;
  Text nameShort_;
  Text nameLong_;
  Text description_;
  std::int8_t limitType_ = -1;
  std::int8_t gameType_ = -1;
  std::int32_t numEntrants_ = -1;
  std::int32_t minNumEntrants_ = -1;
  std::int32_t maxNumEntrants_ = -1;
  std::int32_t currentNumPlayers_ = -1;
  std::int8_t playersPerTable_ = -1;
  TicketInfo ticketInfo_;
  PrizeStructureInfo prizeStructure_;
  MoneyAmount startingChips_;
  // Times are in milliseconds since the beginning of 1970 UTC.
  std::int64_t startTime_ = -1;
  std::int64_t webRegistrationTime_ = -1;
  std::int64_t clientRegistrationTime_ = -1;
  LevelStructureInfo levelStructure_;
  std::int32_t ownerId_ = -1;
  RebuyInfo rebuyInfo_;
  FlightInfo flightInfo_;
  std::int8_t regStatus_ = -1;
};

}  // namespace Tessel
