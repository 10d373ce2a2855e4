#pragma once
#include <herald/platform/tableau/TableNotificationEvent.h>
#include <herald/platform/tableau/TournamentNotification.h>
#include <herald/platform/tableau/TournamentRebuyFailed.h>
#include <herald/platform/tableau/TournamentSynchedEvent.h>

#include <vector>

#include "Capture.h"
#include "Poker.h"
#include "TournamentSummary.h"

namespace Samples {

/// One tournament as its server runs it: entrants, tables, chips and money. It tells the recorded client what happens
/// and tests before each message that the chips in play and the prize pool are what the players have bought.
class Tournament {
 public:
  Tournament(Capture& capture, const TournamentSummary& summary) : capture_(capture), summary_(summary) {}

  /// Sends a message of the server.
  template <class Message>
  void tell(const Body& body = {}) {
    check();
    capture_.server<Message>(body);
  }

  const TournamentSummary& summary() const { return summary_; }
  int playersLeft() const { return summary_.players; }

  /// Registration, and what the tournament's lobby shows.
  void enter(const Person& person);
  void withdraw(const Person& person);
  void tellLobby();
  void tellProgress();
  void tellTables();
  void tellRankings();

  /// The course of the tournament. A level lasts until the next one begins.
  void start();
  void nextLevel();
  void waitForLevelEnd();
  /// So many hands in which chips change hands but nobody loses all.
  void playHands(int count);
  /// A player loses hand after hand until no chips are left.
  void loseAll(const Person& person);
  void takeBreak();
  void endBreak();
  void notify(Tessel::AllowedTournamentNotification event);
  void notifyTable(Tessel::AllowedTableNotificationEvent event);
  void synchronise(Tessel::AllowedTournamentSynchedEvent event);

  /// Rebuys and the add-on.
  void tellRebuyPeriod(bool isAddon);
  void offer(bool isAddon);
  void failRebuy(Tessel::AllowedTournamentRebuyFailed reason);
  void tellPending(const std::vector<Person>& persons);
  void buy(const Person& person, bool isAddon);
  void decline(const Person& person, bool isAddon);

  /// A player without chips leaves the tournament with what the final position wins.
  void knockOut(const Person& person);
  /// The last player wins.
  void finish();

 private:
  static constexpr int NO_TABLE = -1;
  static constexpr int FIRST_TABLE = 9101;
  static constexpr int SECOND_TABLE = 9102;

  struct Entrant {
    Person person;
    int table = NO_TABLE;
    std::int64_t chips = 0;
    int rebuys = 0;
    bool hasAddon = false;
    int position = 0;

    bool isPlaying() const { return table != NO_TABLE; }
  };

  Entrant& entrant(const Person& person);
  /// The user, if registered.
  const Entrant* user() const;
  std::vector<Entrant*> atTable(int table);
  /// The tables that are still played at.
  std::vector<int> tables();
  /// Those still playing, the most chips first.
  std::vector<const Entrant*> ranking() const;
  void check() const;

  static Body level(int number);
  void tellLevel();
  Body ranked(const Entrant& entrant) const;
  Body rankedList(const std::vector<const Entrant*>& entrants) const;
  Body userInfo() const;
  std::int64_t averageChips() const;

  void win(Entrant& winner, Entrant& loser, std::int64_t amount);
  void inviteUser();
  void moveTo(int table, Entrant& moved);
  void balanceTables();
  void tellKnockout(const Entrant& entrant);

  Capture& capture_;
  TournamentSummary summary_;
  std::vector<Entrant> entrants_;
  std::vector<int> closedTables_;
  Dice dice_{9001};
  int level_ = 0;
  std::int64_t levelEnd_ = 0;
  std::int64_t breakStart_ = 0;
  std::int64_t prizesPaid_ = 0;
};

}  // namespace Samples
