#pragma once
#include <herald/SpecificTournamentModel/SpecificTournamentModel.h>
#include <herald/messages/info_objects/LobbyPlayerInfo.h>
#include <herald/messages/info_objects/LobbyTableInfo.h>
#include <herald/messages/info_objects/TourSummaryUpdate.h>

#include <cstdint>

namespace Tessel {

/// Brings the news of a tournament into its model: one operation per kind of news, which the application calls as the
/// tournament's messages arrive. Holds nothing but the reference to the model, which must outlive it; as thread-safe as
/// the model. What the model throws reaches the caller.
class HERALD_API SpecificTournamentController {
 public:
  explicit SpecificTournamentController(SpecificTournamentModel& model) : model_(model) {}

  /// A whole summary. One with rebuys sets the model's rebuy terms, and its add-on terms where it has an add-on.
  void tourGlobalInfo(const TourSummary& summary);
  void tourGlobalInfoUpdate(const TourSummaryUpdate& update);
  void tournamentCancelled();
  void playersNotification(int numberOfEntrants, int numberOfPlayersRemaining, const std::int64_t& averageChipStack);
  void playerInfo(const SpecificLobbyPlayerInfo& info);
  void userRankInfo(const RankedPlayer& user);
  /// The top players, in place of those before.
  void tourRankInfo(const TsArray<RankedPlayer>& players);
  void levelInfo(const TournamentLevelInformation& level);
  void nextLevelInfo(const TournamentLevelInformation& level);

  /// A break is on and ends that many seconds from now.
  void breakInfo(int breakEndOffset);
  /// The next break begins that many seconds from now and lasts that many seconds. Ignored unless the offset is 0 or
  /// more and the duration more than 0.
  void breakNotification(int nextBreakOffset, int breakDuration);
  void breakEnded();
  void noMoreBreaksNotification();

  void updateRegisteredPlayers(const TsArray<LobbyPlayerInfo>& updated, const TsArray<int>& removed);
  void clearRegisteredPlayers();
  void tournamentTablesUpdate(const TsArray<LobbyTableInfo>& updated, const TsArray<int>& removed);
  void clearTables();
  void tournamentRankedPlayerList(int tableId, const TsArray<RankedPlayer>& players);
  /// Throws `ObjectNotFoundException` for a table that is not there.
  void clearRankedPlayerList(int tableId);

  void userRebuyInfo(std::int64_t msUntilPeriodEnd, int remainingRebuys);
  void userRebuyPeriodEnded();
  /// The add-on period begins; the argument is not looked at.
  void userAddonInfo(int);
  void userAddonPeriodEnded();

 private:
  SpecificTournamentModel& model_;
};

}  // namespace Tessel
