#pragma once
#include <herald/SpecificTournamentModel/SpecificTournamentController.h>
#include <herald/dispatch/DefaultClientMessageHandler.h>

#include <optional>

namespace Tessel {

/// Brings the messages of a tournament into its model: which message feeds which operation of the controller, and in
/// which units (messages speak of milliseconds, the controller's breaks of seconds). An application uses it as it is
/// for a connection that serves one tournament, or derives its own handler from it and says with `follow` which
/// tournament the messages are about; an operation that it overrides calls this one's to go on feeding the model.
///
/// Summaries name their tournament, and those of another one are passed over; all other messages are taken to be about
/// the one that is followed. Every other message of the protocol is traced, as by the base.
class HERALD_API TournamentFeed : public DefaultClientMessageHandler {
 public:
  /// Follows none.
  TournamentFeed();
  explicit TournamentFeed(SpecificTournamentModel& model);
  ~TournamentFeed() override;
  TournamentFeed(const TournamentFeed&) = delete;
  TournamentFeed& operator=(const TournamentFeed&) = delete;

  /// Feeds this model from now on. It must outlive the feed, or be given up before it is destroyed.
  void follow(SpecificTournamentModel& model);
  /// From now on the messages of a tournament are passed over.
  void unfollow();

  using DefaultClientMessageHandler::handle;
  void handle(const SpecificTourSummary& message) override;
  void handle(const SpecificTourSummaryUpdate& message) override;
  void handle(const TourNotification& message) override;
  void handle(const TourLevelInfoMsg& message) override;
  void handle(const TourNextLevelInfoMsg& message) override;
  void handle(const TourBreakNotification& message) override;
  void handle(const TourBreakInfo& message) override;
  void handle(const TourBreakEnd& message) override;
  void handle(const TourUserRanking& message) override;
  void handle(const TourPlayerRankingListInfo& message) override;
  void handle(const LobbyPlayerList& message) override;
  void handle(const LobbyTableList& message) override;
  void handle(const LobbyTablePlayerList& message) override;
  void handle(const TournamentRebuyNotificationMsg& message) override;
  /// Of no concern to a tournament.
  void handle(const AbusiveChatWarning& message) override;

 private:
  bool isAbout(int tournamentId) const;
  void showEntrants(int entrants, int remaining, const SpecificLobbyPlayerInfo& user);

  std::optional<int> tournamentId_;
  std::optional<SpecificTournamentController> controller_;
};

}  // namespace Tessel
