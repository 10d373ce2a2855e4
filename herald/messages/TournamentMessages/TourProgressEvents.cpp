#include <herald/messages/MessageOperations.h>
#include <herald/messages/TournamentMessages/TourProgressEvents.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

const TournamentSynchedEvent& TourSynchInfo::getCode() const {
  return TournamentSynchedEvent::getTournamentSynchedEvent(AllowedTournamentSynchedEvent{body().getIntValue()});
}

TsArray<RankedPlayer> TourPlayerRankingListInfo::getRankedPlayers() const {
  TsArray<RankedPlayer> players(getNumberRankedPlayers());
  for (int i = 0; i < players.size(); ++i) players[i] = getRankedPlayer(i);
  return players;
}

std::wstring TourPlayerRankingListInfo::toDebugString() const { return L"[TourPlayerRankingListInfo]"; }

const TournamentNotification& TourNotification::getEvent() const {
  try {
    return TournamentNotificationFactory::createTournamentNotification(
        AllowedTournamentNotification{body().getIntValue()});
  } catch (const KVRException& unknownCode) {
    unknownCode.report();
    return TournamentNotificationFactory::createTournamentNotification(AllowedTournamentNotification::UNKNOWN);
  }
}

const TableNotificationEvent& TableNotification::getEvent() const {
  return TableNotificationEventFactory::createTableNotificationEvent(
      AllowedTableNotificationEvent{body().getIntValue()});
}

std::wstring TourNextLevelInfoMsg::toDebugString() const {
  return formatText(L"[TourNextLevelInfoMsg %s %s]", current_, next_);
}

std::wstring TourKnockoutInfo::toDebugString() const {
  return formatText(L"[TourKnockoutInfo: iPlayerId=%d, iPlayerName=%s, iFinalPosition=%d %s %s]", playerId_,
                    playerName_, finalPosition_, monetaryPrizes_, ticketPrizes_);
}

std::wstring TourPlayerLeave::toDebugString() const {
  return formatText(L"[TourPlayerLeave: PlayerId=%d, TableName=%s]", playerId_, tableMovingToName_);
}

std::wstring TourPlayerArrive::toDebugString() const {
  return formatText(L"[TourPlayerArrive: PlayerName=%s, TableName=%s]", playerName_, tableArrivingFromName_);
}

std::wstring TourFlightEndNotification::toDebugString() const {
  return formatText(L"[TourFlightEndNotification: RemainingTime=%li]", remainingMs_);
}

}  // namespace Tessel
