#pragma once
#include <herald/platform/tableau/TableNotificationEvent.h>
#include <herald/platform/tableau/TournamentNotification.h>
#include <herald/platform/tableau/TournamentRebuyFailed.h>
#include <herald/platform/tableau/TournamentSynchedEvent.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "Audience.h"
#include "Poker.h"
#include "TournamentSummary.h"

namespace CardRoom {

/// One tournament as its server runs it: entrants, tables, chips and money. Before each message it tests that the chips
/// in play and the prize pool are what the players have bought.
class Tournament : public Teller {
 public:
  Tournament(Audience& audience, TournamentSummary summary) : Teller(audience), summary_(std::move(summary)) {}

  /// As the listener sees it.
  TournamentSummary summaryFor(int listener) const;
  int entrants() const { return summary_.entrants; }
  bool hasEntered(int player) const;
  /// The id of the table where the player plays; -1 for none.
  int tableOf(int player) const;
  /// The lowest of its tables' ids.
  int firstTable() const { return summary_.id + 100; }
  /// The chips of all who still play, by their ids.
  std::vector<std::pair<Person, std::int64_t>> stacks() const;
  /// What the player has won. A ticket counts for its value.
  std::int64_t prizeOf(int player) const;
  int playersLeft() const { return summary_.players; }

  /// Registration, and what the tournament's lobby shows.
  void enter(const Person& person);
  void withdraw(const Person& person);
  void tellLobby();
  void tellLobby(int listener);
  void tellProgress();
  void tellTables();
  void tellRankings();

  /// The course of the tournament. A level lasts until the next one begins.
  void start();
  /// Waits for the level's end, then begins the next one.
  void nextLevel();
  void raiseLevel();
  std::int64_t bigBlind() const;
  std::int64_t ante() const;
  void waitForLevelEnd();
  /// Hands have been played: the players have these chips now.
  void settle(const std::vector<std::pair<int, std::int64_t>>& chipsOfPlayers);
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
  /// Null for one who has not entered.
  const Entrant* find(int player) const;
  std::vector<Entrant*> atTable(int table);
  /// The tables that are still played at.
  std::vector<int> tables();
  /// Those still playing, the most chips first.
  std::vector<const Entrant*> ranking() const;
  void check() const override;

  int secondTable() const { return firstTable() + 1; }
  std::wstring tableName(int table) const;
  /// The listeners who play at a table.
  std::vector<int> listenersAt(int table) const;
  static Body level(int number);
  void tellLevel();
  void tellTables(const std::vector<int>& listeners, const std::vector<int>& closed);
  Body ranked(const Entrant& entrant) const;
  Body rankedList(const std::vector<const Entrant*>& entrants) const;
  Body infoFor(int listener) const;
  std::int64_t averageChips() const;

  void win(Entrant& winner, Entrant& loser, std::int64_t amount);
  void invite(const Entrant& entrant);
  std::int64_t prize(int position) const;
  void moveTo(int table, Entrant& moved);
  void balanceTables();
  void tellKnockout(const Entrant& entrant);

  TournamentSummary summary_;
  std::vector<Entrant> entrants_;
  std::vector<int> closedTables_;
  Dice dice_{9001};
  int level_ = 0;
  std::int64_t levelEnd_ = 0;
  std::int64_t breakStart_ = 0;
  std::int64_t prizesPaid_ = 0;
};

}  // namespace CardRoom
