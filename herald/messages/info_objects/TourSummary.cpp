#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TourSummary.h>
#include <herald/platform/keystone/StringUtils.h>

namespace Tessel {

namespace {

TsTime fromMilliseconds(std::int64_t milliseconds) { return TsTime(milliseconds / 1000); }

}  // namespace

LobbyNodeInterface* TourSummary::cloneNode() const { return new TourSummary(*this); }

int TourSummary::getLobbyNodeId() const { return tourId_; }

const TournamentStatus& TourSummary::getTournamentStatus() const {
  return TournamentStatusFactory::createTournamentStatus(AllowedTournamentStatus{status_});
}

void TourSummary::setCancelled() { status_ = static_cast<std::int8_t>(AllowedTournamentStatus::CANCELLED); }

const LimitType* TourSummary::getLimitType() const {
  return LimitTypeFactory::createLimitType(LimitTypes::AllowedLimitType{limitType_});
}

const GameType* TourSummary::getGameType() const {
  return GameTypeFactory::createGameType(GameTypes::AllowedGameType{gameType_});
}

TournamentTicket TourSummary::getTicketInformation() const {
  return {ticketInfo_.getBuyIn(), ticketInfo_.getFee(), ticketInfo_.isRestricted(), ticketInfo_.getDescription()};
}

TsTime TourSummary::getStartTime() const { return hasStartTime() ? fromMilliseconds(startTime_) : TsTime(0); }

TsTime TourSummary::getWebRegistrationTime() const { return fromMilliseconds(webRegistrationTime_); }

TsTime TourSummary::getClientSignupTime() const { return fromMilliseconds(clientRegistrationTime_); }

std::wstring TourSummary::toDebugString() const {
  return formatText(
      L"[TourSummary TourId=%d, Attributes=%d, Status=%d, ServerPort=%d, NameShort=%s,\tNameLong=%s, Description=%s, "
      L"GameType=%d, LimitType=%d, NumEntrants=%d, MaxNumEntrants=%d, CurrentNumPlayers=%d, MinNumEntrants=%d, "
      L"PlayersPerTable=%d, TicketInfo=%s, PrizeStructure=%s, StartingChips=%s, StartTime=%s, WebRegistrationTime=%s, "
      L"ClientRegistrationTime=%s, LevelStructure=%s, OwnerId=%d, RebuyInfo=%s, FlightInfo=%s, RegStatus=%d]",
      tourId_, attributes_, status_, serverPort_, nameShort_, nameLong_, description_, gameType_, limitType_,
      numEntrants_, maxNumEntrants_, currentNumPlayers_, minNumEntrants_, playersPerTable_, ticketInfo_,
      prizeStructure_, startingChips_, StringUtils::int64ToString(startTime_),
      StringUtils::int64ToString(webRegistrationTime_), StringUtils::int64ToString(clientRegistrationTime_),
      levelStructure_, ownerId_, rebuyInfo_, flightInfo_, regStatus_);
}

}  // namespace Tessel
