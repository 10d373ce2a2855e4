#pragma once
#include <herald/SpecificTournamentModel/SpecificTournamentController.h>
#include <herald/dispatch/DefaultClientMessageHandler.h>
#include <herald/messages/RebuyEvents.h>
#include <herald/messages/TourSummaryEvents.h>
#include <herald/messages/TournamentLobbyEvents.h>
#include <herald/messages/TournamentMessages/TourProgressEvents.h>

/// Brings the messages of one tournament into its model: which message feeds which operation of the controller, and in
/// which units. This is the part that an application writes.
class TournamentFeed : public Tessel::DefaultClientMessageHandler {
 public:
  explicit TournamentFeed(Tessel::SpecificTournamentModel& model) : controller_(model) {}

  using DefaultClientMessageHandler::handle;
  void handle(const Tessel::AbusiveChatWarning&) override {}

  void handle(const Tessel::SpecificTourSummary& message) override {
    controller_.tourGlobalInfo(message.getTourSummary());
    showEntrants(message.getTourSummary().getNumberOfEntrants(), message.getTourSummary().getCurrentNumberOfPlayers(),
                 message.getPlayerInfo());
  }
  void handle(const Tessel::SpecificTourSummaryUpdate& message) override {
    const Tessel::TourSummaryUpdate& update = message.getTourSummaryUpdate();
    controller_.tourGlobalInfoUpdate(update);
    showEntrants(update.getEntrants(), update.getCurrentNumberOfPlayers(), message.getPlayerInfo());
  }
  void handle(const Tessel::TourNotification& message) override {
    if (message.getEvent().getValue() == Tessel::AllowedTournamentNotification::CANCELLED)
      controller_.tournamentCancelled();
  }

  void handle(const Tessel::TourLevelInfoMsg& message) override {
    controller_.levelInfo(message.getTourLevelInfo().getInfo());
  }
  void handle(const Tessel::TourNextLevelInfoMsg& message) override {
    controller_.levelInfo(message.getCurrentLevelInfo().getInfo());
    controller_.nextLevelInfo(message.getNextLevelInfo().getInfo());
  }

  // The model's break offsets and durations are in seconds, the messages' in milliseconds.
  void handle(const Tessel::TourBreakNotification& message) override {
    if (message.hasMoreBreaks())
      controller_.breakNotification(seconds(message.getMsUntilNextBreak()), seconds(message.getNextBreakDurationMs()));
    else
      controller_.noMoreBreaksNotification();
  }
  void handle(const Tessel::TourBreakInfo& message) override {
    controller_.playersNotification(message.getNumberOfEntrants(), message.getNumberOfRemainingPlayers(),
                                    message.getAverageChipStack());
    controller_.breakInfo(seconds(message.getRemainingMs()));
  }
  void handle(const Tessel::TourBreakEnd&) override { controller_.breakEnded(); }

  void handle(const Tessel::TourUserRanking& message) override { controller_.userRankInfo(message.getUserRanking()); }
  void handle(const Tessel::TourPlayerRankingListInfo& message) override {
    controller_.tourRankInfo(message.getRankedPlayers());
  }
  void handle(const Tessel::LobbyPlayerList& message) override {
    controller_.updateRegisteredPlayers(message.getRegisteredPlayers(), message.getUnregisteredPlayers());
  }
  void handle(const Tessel::LobbyTableList& message) override {
    controller_.tournamentTablesUpdate(message.getUpdatedTables(), message.getRemovedTables());
  }
  void handle(const Tessel::LobbyTablePlayerList& message) override {
    controller_.tournamentRankedPlayerList(message.getTableId(), message.getRankedPlayers());
  }

  void handle(const Tessel::TournamentRebuyNotificationMsg& message) override {
    const Tessel::TourRebuyNotification& period = message.getRebuyNotification();
    if (period.isAddon())
      period.hasRebuyPeriodEnded() ? controller_.userAddonPeriodEnded() : controller_.userAddonInfo(0);
    else if (period.hasRebuyPeriodEnded())
      controller_.userRebuyPeriodEnded();
    else
      controller_.userRebuyInfo(period.getRebuyPeriodMsRemaining(), period.getNumberOfRebuysRemaining());
  }

 private:
  static int seconds(std::int64_t milliseconds) { return static_cast<int>(milliseconds / 1000); }

  void showEntrants(int entrants, int remaining, const Tessel::SpecificLobbyPlayerInfo& user) {
    controller_.playersNotification(entrants, remaining, user.getAverageChipStack().getAmount());
    controller_.playerInfo(user);
  }

  Tessel::SpecificTournamentController controller_;
};
