#include <herald/SpecificTournamentModel/SpecificTournamentModel.h>
#include <herald/SpecificTournamentModel/TournamentBreakModificationObjects.h>
#include <herald/SpecificTournamentModel/TournamentCollectionModifiers.h>
#include <herald/SpecificTournamentModel/TournamentInformationModificationObjects.h>
#include <herald/SpecificTournamentModel/TournamentRankingModificationObjects.h>
#include <herald/SpecificTournamentModel/TournamentUpdateObjects.h>
#include <herald/platform/keystone/Exceptions.h>

#include <mutex>

namespace Tessel {

SpecificTournamentModel::SpecificTournamentModel(int tournamentId) : tournamentId_(tournamentId) {}

SpecificTournamentModel::~SpecificTournamentModel() = default;

template <class Part>
Part SpecificTournamentModel::copyOf(const Part& part) const {
  const std::lock_guard guard(getLock());
  return part;
}

TournamentBaseModel SpecificTournamentModel::getBasicInformation() const { return copyOf(basicInformation_); }

void SpecificTournamentModel::modifyBasicInformation(TournamentBaseModificationObject& change) {
  const std::lock_guard guard(getLock());
  if (change.modify(basicInformation_)) notifyObservers(TournamentBaseUpdateObject(*this));
}

TournamentBreakModel SpecificTournamentModel::getBreakInformation() const { return copyOf(breakInformation_); }

void SpecificTournamentModel::modifyBreakInformation(TournamentBreakModificationObject& change) {
  const std::lock_guard guard(getLock());
  if (change.modify(breakInformation_)) notifyObservers(TournamentBreakUpdateObject(*this));
}

TournamentPlayerRankingModel SpecificTournamentModel::getPlayerRankingInformation() const {
  return copyOf(playerRanking_);
}

void SpecificTournamentModel::modifyPlayerRankingInformation(TournamentPlayerRankingModificationObject& change) {
  const std::lock_guard guard(getLock());
  if (change.modify(playerRanking_)) notifyObservers(TournamentPlayerRankingUpdateObject(*this));
}

TournamentLevelInformation SpecificTournamentModel::getLevelInformation() const { return copyOf(currentLevel_); }

TournamentLevelInformation SpecificTournamentModel::getNextLevelInformation() const { return copyOf(nextLevel_); }

void SpecificTournamentModel::modifyLevelInformation(TournamentLevelInformationModificationObject& change) {
  const std::lock_guard guard(getLock());
  change.modify(currentLevel_);
  notifyObservers(TournamentLevelInformationUpdateObject(*this));
}

void SpecificTournamentModel::modifyNextLevelInformation(TournamentLevelInformationModificationObject& change) {
  const std::lock_guard guard(getLock());
  change.modify(nextLevel_);
  notifyObservers(TournamentLevelInformationUpdateObject(*this));
}

void SpecificTournamentModel::modifyLevelInformation(TournamentOnBreakModificationObject&) {
  const std::lock_guard guard(getLock());
  currentLevel_.breakStartingNow();
  nextLevel_.breakStartingNow();
}

void SpecificTournamentModel::modifyLevelInformation(TournamentNotOnBreakModificationObject&) {
  const std::lock_guard guard(getLock());
  currentLevel_.breakEnded();
}

TourSummary SpecificTournamentModel::getTourSummary() const { return copyOf(tourSummary_); }

void SpecificTournamentModel::modifyGlobalInformation(TournamentGlobalInformationModificationObject& change) {
  const std::lock_guard guard(getLock());
  if (change.modify(tourSummary_)) notifyObservers(TournamentGlobalInformationUpdateObject(*this));
}

void SpecificTournamentModel::tournamentCancelled() {
  const std::lock_guard guard(getLock());
  tourSummary_.setCancelled();
  notifyObservers(TournamentGlobalInformationUpdateObject(*this));
}

SpecificLobbyPlayerInfo SpecificTournamentModel::getPlayerInfo() const { return copyOf(playerInformation_); }

void SpecificTournamentModel::modifyPlayerInformation(TournamentPlayerInformationModificationObject& change) {
  const std::lock_guard guard(getLock());
  if (change.modify(playerInformation_)) notifyObservers(TournamentPlayerInformationUpdateObject(*this));
}

void SpecificTournamentModel::readRegisteredPlayers(TournamentRegisteredPlayersReader& reader) const {
  const std::lock_guard guard(getLock());
  reader.read(registeredPlayers_);
}

void SpecificTournamentModel::modifyRegisteredPlayers(TournamentRegisteredPlayersModifier& change) {
  const std::lock_guard guard(getLock());
  registeredPlayers_.resetModifiedPlayers();
  change.modify(registeredPlayers_);
  notifyObservers(TournamentRegisteredPlayersUpdateObject(*this, registeredPlayers_.getModifiedPlayers()));
}

void SpecificTournamentModel::readTables(TournamentTablesReader& reader) const {
  const std::lock_guard guard(getLock());
  reader.read(tables_);
}

void SpecificTournamentModel::modifyTables(TournamentTablesModifier& change) {
  const std::lock_guard guard(getLock());
  tables_.resetModifiedTables();
  change.modify(tables_);
  notifyObservers(TournamentTablesUpdateObject(*this, tables_.getModifiedTables()));
}

TsArray<RankedPlayer> SpecificTournamentModel::getTableRankedPlayers(int tableId) const {
  const std::lock_guard guard(getLock());
  if (!tables_.containsTable(tableId)) return {};
  try {
    return tables_.getTable(tableId).getRankedPlayers();
  } catch (ObjectNotFoundException& failure) {
    // Logs and bug trackers know this place by its line number, which therefore stays.
    failure.setCaughtBy(L"SpecificTournamentModel/SpecificTournamentModel", 311);
    failure.report();
    return {};
  }
}

void SpecificTournamentModel::setTableRankedPlayersList(int tableId, const TsArray<RankedPlayer>& players) {
  const std::lock_guard guard(getLock());
  try {
    tables_.setRankedPlayers(tableId, players);
  } catch (const ObjectNotFoundException& failure) {
    failure.report();
    return;
  }
  notifyObservers(TournamentTableRankedPlayersUpdateObject(*this, tableId));
}

void SpecificTournamentModel::clearTableRankedPlayersList(int tableId) {
  const std::lock_guard guard(getLock());
  tables_.clearRankedPlayers(tableId);
  notifyObservers(TournamentTableRankedPlayersUpdateObject(*this, tableId));
}

TournamentRebuyModel SpecificTournamentModel::getRebuyInfo() const { return copyOf(rebuyInformation_); }

template <class Change>
void SpecificTournamentModel::changeRebuyInfo(const Change& change) {
  const std::lock_guard guard(getLock());
  change(rebuyInformation_);
  notifyObservers(TournamentRebuyUpdateObject(*this));
}

void SpecificTournamentModel::setRebuyInfo(int totalRebuys, const Money& rebuyCost, const Money& rebuyAmount,
                                           std::int64_t rebuyDurationMs) {
  changeRebuyInfo([&](auto& rebuys) { rebuys.setRebuyInfo(totalRebuys, rebuyCost, rebuyAmount, rebuyDurationMs); });
}

void SpecificTournamentModel::setAddonInfo(int totalAddons, const Money& addonCost, const Money& addonAmount) {
  changeRebuyInfo([&](auto& rebuys) { rebuys.setAddonInfo(totalAddons, addonCost, addonAmount); });
}

void SpecificTournamentModel::setUserRebuyInfo(int remainingRebuys, std::int64_t msUntilPeriodEnd) {
  changeRebuyInfo([&](auto& rebuys) { rebuys.setUserRebuyInfo(remainingRebuys, msUntilPeriodEnd); });
}

void SpecificTournamentModel::setUserRebuyPeriodEnd() {
  changeRebuyInfo([](auto& rebuys) { rebuys.setRebuyPeriodEnded(); });
}

void SpecificTournamentModel::setAddonPeriodStarted() {
  changeRebuyInfo([](auto& rebuys) { rebuys.setAddonPeriodStarts(); });
}

void SpecificTournamentModel::setAddonPeriodEnded() {
  changeRebuyInfo([](auto& rebuys) { rebuys.setAddonPeriodEnds(); });
}

}  // namespace Tessel
