#include <herald/SpecificTournamentModel/TournamentFeed.h>
#include <herald/messages/RebuyEvents.h>
#include <herald/messages/TourSummaryEvents.h>
#include <herald/messages/TournamentLobbyEvents.h>
#include <herald/messages/TournamentMessages/TourBreakEnd.h>
#include <herald/messages/TournamentMessages/TourBreakInfo.h>
#include <herald/messages/TournamentMessages/TourBreakNotification.h>
#include <herald/messages/TournamentMessages/TourProgressEvents.h>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace Tessel {

namespace {

int seconds(std::int64_t milliseconds) {
  constexpr std::int64_t LIMIT = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(milliseconds / 1000, -LIMIT, LIMIT));
}

}  // namespace

TournamentFeed::TournamentFeed() = default;

TournamentFeed::TournamentFeed(SpecificTournamentModel& model) { follow(model); }

TournamentFeed::~TournamentFeed() = default;

void TournamentFeed::follow(SpecificTournamentModel& model) {
  tournamentId_ = model.getTournamentId();
  controller_.emplace(model);
}

void TournamentFeed::unfollow() {
  tournamentId_.reset();
  controller_.reset();
}

bool TournamentFeed::isAbout(int tournamentId) const { return tournamentId_ == tournamentId; }

void TournamentFeed::showEntrants(int entrants, int remaining, const SpecificLobbyPlayerInfo& user) {
  controller_->playersNotification(entrants, remaining, user.getAverageChipStack().getAmount());
  controller_->playerInfo(user);
}

void TournamentFeed::handle(const SpecificTourSummary& message) {
  const TourSummary& summary = message.getTourSummary();
  if (!isAbout(summary.getTournamentId())) return;
  controller_->tourGlobalInfo(summary);
  showEntrants(summary.getNumberOfEntrants(), summary.getCurrentNumberOfPlayers(), message.getPlayerInfo());
}

void TournamentFeed::handle(const SpecificTourSummaryUpdate& message) {
  const TourSummaryUpdate& update = message.getTourSummaryUpdate();
  if (!isAbout(update.getTournamentId())) return;
  controller_->tourGlobalInfoUpdate(update);
  showEntrants(update.getEntrants(), update.getCurrentNumberOfPlayers(), message.getPlayerInfo());
}

void TournamentFeed::handle(const TourNotification& message) {
  if (controller_ && message.getEvent().getValue() == AllowedTournamentNotification::CANCELLED)
    controller_->tournamentCancelled();
}

void TournamentFeed::handle(const TourLevelInfoMsg& message) {
  if (controller_) controller_->levelInfo(message.getTourLevelInfo().getInfo());
}

void TournamentFeed::handle(const TourNextLevelInfoMsg& message) {
  if (!controller_) return;
  controller_->levelInfo(message.getCurrentLevelInfo().getInfo());
  controller_->nextLevelInfo(message.getNextLevelInfo().getInfo());
}

void TournamentFeed::handle(const TourBreakNotification& message) {
  if (!controller_) return;
  if (!message.hasMoreBreaks()) return controller_->noMoreBreaksNotification();
  controller_->breakNotification(seconds(message.getMsUntilNextBreak()), seconds(message.getNextBreakDurationMs()));
}

void TournamentFeed::handle(const TourBreakInfo& message) {
  if (!controller_) return;
  controller_->playersNotification(message.getNumberOfEntrants(), message.getNumberOfRemainingPlayers(),
                                   message.getAverageChipStack());
  controller_->breakInfo(seconds(message.getRemainingMs()));
}

void TournamentFeed::handle(const TourBreakEnd&) {
  if (controller_) controller_->breakEnded();
}

void TournamentFeed::handle(const TourUserRanking& message) {
  if (controller_) controller_->userRankInfo(message.getUserRanking());
}

void TournamentFeed::handle(const TourPlayerRankingListInfo& message) {
  if (controller_) controller_->tourRankInfo(message.getRankedPlayers());
}

void TournamentFeed::handle(const LobbyPlayerList& message) {
  if (controller_)
    controller_->updateRegisteredPlayers(message.getRegisteredPlayers(), message.getUnregisteredPlayers());
}

void TournamentFeed::handle(const LobbyTableList& message) {
  if (controller_) controller_->tournamentTablesUpdate(message.getUpdatedTables(), message.getRemovedTables());
}

void TournamentFeed::handle(const LobbyTablePlayerList& message) {
  if (controller_) controller_->tournamentRankedPlayerList(message.getTableId(), message.getRankedPlayers());
}

void TournamentFeed::handle(const TournamentRebuyNotificationMsg& message) {
  if (!controller_) return;
  const TourRebuyNotification& period = message.getRebuyNotification();
  const bool isOver = period.hasRebuyPeriodEnded();
  if (period.isAddon()) return isOver ? controller_->userAddonPeriodEnded() : controller_->userAddonInfo(0);
  if (isOver) return controller_->userRebuyPeriodEnded();
  controller_->userRebuyInfo(period.getRebuyPeriodMsRemaining(), period.getNumberOfRebuysRemaining());
}

void TournamentFeed::handle(const AbusiveChatWarning&) {}

}  // namespace Tessel
