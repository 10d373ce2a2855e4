#pragma once
#include <herald/SpecificTournamentModel/TournamentRegisteredPlayers.h>
#include <herald/SpecificTournamentModel/TournamentTables.h>
#include <herald/messages/info_objects/LobbyTableInfo.h>

// Batches of changes of the registered players and the tables, as the controller hands them to the model. They keep
// references to the arrays that they were made with. Internal: not exported.

namespace Tessel {

class TournamentRegisteredPlayersModifier {
 public:
  virtual ~TournamentRegisteredPlayersModifier() = default;
  virtual void modify(TournamentRegisteredPlayers& players) = 0;
};

/// Updates, then removes.
class ConcreteTournamentRegisteredPlayersModifier : public TournamentRegisteredPlayersModifier {
 public:
  ConcreteTournamentRegisteredPlayersModifier(const TsArray<LobbyPlayerInfo>& updated, const TsArray<int>& removed)
      : updated_(updated), removed_(removed) {}

  void modify(TournamentRegisteredPlayers& players) override {
    for (const LobbyPlayerInfo& player : updated_) players.updateRegisteredPlayer(player);
    for (const int id : removed_) players.removeRegisteredPlayer(id);
  }

 private:
  const TsArray<LobbyPlayerInfo>& updated_;
  const TsArray<int>& removed_;
};

class ClearTournamentRegisteredPlayersModifier : public TournamentRegisteredPlayersModifier {
 public:
  void modify(TournamentRegisteredPlayers& players) override { players.clearRegisteredPlayers(); }
};

class TournamentTablesModifier {
 public:
  virtual ~TournamentTablesModifier() = default;
  virtual void modify(TournamentTables& tables) = 0;
};

/// Updates, then removes.
class ConcreteTournamentTablesModifier : public TournamentTablesModifier {
 public:
  ConcreteTournamentTablesModifier(const TsArray<LobbyTableInfo>& updated, const TsArray<int>& removed)
      : updated_(updated), removed_(removed) {}

  void modify(TournamentTables& tables) override {
    for (const LobbyTableInfo& table : updated_)
      tables.updateTable(table.getTableId(), table.getTableName(), table.getNumberOfSeatedPlayers(), table.isVIPTable(),
                         table.getMinChipStackAtTable(), table.getMaxChipStackAtTable());
    for (const int id : removed_) tables.removeTable(id);
  }

 private:
  const TsArray<LobbyTableInfo>& updated_;
  const TsArray<int>& removed_;
};

class ClearTournamentTablesModifier : public TournamentTablesModifier {
 public:
  void modify(TournamentTables& tables) override { tables.clearTables(); }
};

}  // namespace Tessel
