#include <herald/SpecificTournamentModel/SpecificTournamentController.h>
#include <herald/SpecificTournamentModel/TournamentBreakModificationObjects.h>
#include <herald/SpecificTournamentModel/TournamentCollectionModifiers.h>
#include <herald/SpecificTournamentModel/TournamentInformationModificationObjects.h>
#include <herald/SpecificTournamentModel/TournamentRankingModificationObjects.h>

namespace Tessel {

void SpecificTournamentController::tourGlobalInfo(const TourSummary& summary) {
  TournamentGlobalInformationBaseModificationObject change(summary);
  model_.modifyGlobalInformation(change);
  if (!summary.hasRebuys()) return;
  const RebuyInfo rebuys = summary.getRebuyInfo();
  model_.setRebuyInfo(rebuys.getNumberOfRebuys(), rebuys.getRebuyCost(), rebuys.getRebuy(),
                      rebuys.getRebuyPeriodDurationMs());
  if (rebuys.hasAddon()) model_.setAddonInfo(1, rebuys.getAddonCost(), rebuys.getAddon());
}

void SpecificTournamentController::tourGlobalInfoUpdate(const TourSummaryUpdate& update) {
  TournamentGlobalInformationUpdateModificationObject change(update);
  model_.modifyGlobalInformation(change);
}

void SpecificTournamentController::tournamentCancelled() { model_.tournamentCancelled(); }

void SpecificTournamentController::playersNotification(int numberOfEntrants, int numberOfPlayersRemaining,
                                                       const std::int64_t& averageChipStack) {
  TournamentBaseModificationObject change(numberOfEntrants, numberOfPlayersRemaining, averageChipStack);
  model_.modifyBasicInformation(change);
}

void SpecificTournamentController::playerInfo(const SpecificLobbyPlayerInfo& info) {
  TournamentPlayerInformationModificationObject change(info);
  model_.modifyPlayerInformation(change);
}

void SpecificTournamentController::userRankInfo(const RankedPlayer& user) {
  TournamentUserRankingModificationObject change(user);
  model_.modifyPlayerRankingInformation(change);
}

void SpecificTournamentController::tourRankInfo(const TsArray<RankedPlayer>& players) {
  TournamentTopPlayersModificationObject change(players);
  model_.modifyPlayerRankingInformation(change);
}

void SpecificTournamentController::levelInfo(const TournamentLevelInformation& level) {
  TournamentLevelInformationModificationObject change(level);
  model_.modifyLevelInformation(change);
}

void SpecificTournamentController::nextLevelInfo(const TournamentLevelInformation& level) {
  TournamentLevelInformationModificationObject change(level);
  model_.modifyNextLevelInformation(change);
}

void SpecificTournamentController::breakInfo(int breakEndOffset) {
  TournamentOnBreakModificationObject change(breakEndOffset);
  model_.modifyBreakInformation(change);
  model_.modifyLevelInformation(change);
}

void SpecificTournamentController::breakNotification(int nextBreakOffset, int breakDuration) {
  if (nextBreakOffset < 0 || breakDuration <= 0) return;
  TournamentNotOnBreakModificationObject change(nextBreakOffset, breakDuration);
  model_.modifyBreakInformation(change);
}

void SpecificTournamentController::breakEnded() {
  TournamentNotOnBreakModificationObject change(-1, -1);
  model_.modifyBreakInformation(change);
  model_.modifyLevelInformation(change);
}

void SpecificTournamentController::noMoreBreaksNotification() {
  TournamentNoMoreBreaksModificationObject change;
  model_.modifyBreakInformation(change);
}

void SpecificTournamentController::updateRegisteredPlayers(const TsArray<LobbyPlayerInfo>& updated,
                                                           const TsArray<int>& removed) {
  ConcreteTournamentRegisteredPlayersModifier change(updated, removed);
  model_.modifyRegisteredPlayers(change);
}

void SpecificTournamentController::clearRegisteredPlayers() {
  ClearTournamentRegisteredPlayersModifier change;
  model_.modifyRegisteredPlayers(change);
}

void SpecificTournamentController::tournamentTablesUpdate(const TsArray<LobbyTableInfo>& updated,
                                                          const TsArray<int>& removed) {
  ConcreteTournamentTablesModifier change(updated, removed);
  model_.modifyTables(change);
}

void SpecificTournamentController::clearTables() {
  ClearTournamentTablesModifier change;
  model_.modifyTables(change);
}

void SpecificTournamentController::tournamentRankedPlayerList(int tableId, const TsArray<RankedPlayer>& players) {
  model_.setTableRankedPlayersList(tableId, players);
}

void SpecificTournamentController::clearRankedPlayerList(int tableId) { model_.clearTableRankedPlayersList(tableId); }

void SpecificTournamentController::userRebuyInfo(std::int64_t msUntilPeriodEnd, int remainingRebuys) {
  model_.setUserRebuyInfo(remainingRebuys, msUntilPeriodEnd);
}

void SpecificTournamentController::userRebuyPeriodEnded() { model_.setUserRebuyPeriodEnd(); }

void SpecificTournamentController::userAddonInfo(int) { model_.setAddonPeriodStarted(); }

void SpecificTournamentController::userAddonPeriodEnded() { model_.setAddonPeriodEnded(); }

}  // namespace Tessel
