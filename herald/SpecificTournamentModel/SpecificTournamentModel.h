#pragma once
#include <herald/SpecificTournamentModel/TournamentBaseModel.h>
#include <herald/SpecificTournamentModel/TournamentBreakModel.h>
#include <herald/SpecificTournamentModel/TournamentPlayerRankingModel.h>
#include <herald/SpecificTournamentModel/TournamentRebuyModel.h>
#include <herald/SpecificTournamentModel/TournamentRegisteredPlayers.h>
#include <herald/SpecificTournamentModel/TournamentTables.h>
#include <herald/messages/info_objects/SpecificLobbyPlayerInfo.h>
#include <herald/messages/info_objects/TourSummary.h>
#include <herald/platform/keystone/MVCModel.h>
#include <herald/platform/tableau/TournamentLevelInformation.h>

#include <cstdint>

namespace Tessel {

class TournamentBaseModificationObject;
class TournamentBreakModificationObject;
class TournamentGlobalInformationModificationObject;
class TournamentLevelInformationModificationObject;
class TournamentNotOnBreakModificationObject;
class TournamentOnBreakModificationObject;
class TournamentPlayerInformationModificationObject;
class TournamentPlayerRankingModificationObject;
class TournamentRegisteredPlayersModifier;
class TournamentTablesModifier;

/// The live picture of one tournament. After every change it tells its observers which part changed, by the class of
/// the update object (TournamentUpdateObjects.h). News comes in through `SpecificTournamentController`.
///
/// Every operation is safe from any thread: it holds the model's lock for its whole work, the notification of the
/// observers included. A getter answers a copy, so that what it answers belongs together. What an observer may do in a
/// notification is said at `MVCModel`.
class HERALD_API SpecificTournamentModel : public MVCModel {
 public:
  explicit SpecificTournamentModel(int tournamentId);
  ~SpecificTournamentModel() override;

  int getTournamentId() const { return tournamentId_; }

  TournamentBaseModel getBasicInformation() const;
  void modifyBasicInformation(TournamentBaseModificationObject& change);

  TournamentBreakModel getBreakInformation() const;
  void modifyBreakInformation(TournamentBreakModificationObject& change);

  TournamentPlayerRankingModel getPlayerRankingInformation() const;
  void modifyPlayerRankingInformation(TournamentPlayerRankingModificationObject& change);

  TournamentLevelInformation getLevelInformation() const;
  TournamentLevelInformation getNextLevelInformation() const;
  /// The level's break state stays.
  void modifyLevelInformation(TournamentLevelInformationModificationObject& change);
  void modifyNextLevelInformation(TournamentLevelInformationModificationObject& change);
  /// A break begins: the current and the next level are told. Nobody is notified, here and below.
  void modifyLevelInformation(TournamentOnBreakModificationObject& change);
  /// A break has ended: the current level is told.
  void modifyLevelInformation(TournamentNotOnBreakModificationObject& change);

  TourSummary getTourSummary() const;
  void modifyGlobalInformation(TournamentGlobalInformationModificationObject& change);
  void tournamentCancelled();

  SpecificLobbyPlayerInfo getPlayerInfo() const;
  void modifyPlayerInformation(TournamentPlayerInformationModificationObject& change);

  /// The reader looks at the players under the model's lock and must not keep a reference to them.
  void readRegisteredPlayers(TournamentRegisteredPlayersReader& reader) const;
  void modifyRegisteredPlayers(TournamentRegisteredPlayersModifier& change);

  /// As `readRegisteredPlayers`.
  void readTables(TournamentTablesReader& reader) const;
  void modifyTables(TournamentTablesModifier& change);

  /// Empty for a table that is not there.
  TsArray<RankedPlayer> getTableRankedPlayers(int tableId) const;
  /// For a table that is not there, reports and tells nobody.
  void setTableRankedPlayersList(int tableId, const TsArray<RankedPlayer>& players);
  /// Throws `ObjectNotFoundException` for a table that is not there.
  void clearTableRankedPlayersList(int tableId);

  TournamentRebuyModel getRebuyInfo() const;
  /// As the operations of `TournamentRebuyModel`.
  void setRebuyInfo(int totalRebuys, const Money& rebuyCost, const Money& rebuyAmount, std::int64_t rebuyDurationMs);
  void setAddonInfo(int totalAddons, const Money& addonCost, const Money& addonAmount);
  void setUserRebuyInfo(int remainingRebuys, std::int64_t msUntilPeriodEnd);
  void setUserRebuyPeriodEnd();
  void setAddonPeriodStarted();
  void setAddonPeriodEnded();

 private:
  template <class Part>
  Part copyOf(const Part& part) const;
  template <class Change>
  void changeRebuyInfo(const Change& change);

  const int tournamentId_;
  TournamentBaseModel basicInformation_;
  TournamentBreakModel breakInformation_;
  TournamentPlayerRankingModel playerRanking_;
  TournamentLevelInformation currentLevel_;
  TournamentLevelInformation nextLevel_;
  TourSummary tourSummary_;
  SpecificLobbyPlayerInfo playerInformation_;
  TournamentRegisteredPlayers registeredPlayers_;
  TournamentTables tables_;
  TournamentRebuyModel rebuyInformation_;
};

}  // namespace Tessel
