#pragma once
#include <herald/SpecificTournamentModel/ModifiedMap.h>
#include <herald/SpecificTournamentModel/TournamentTable.h>

namespace Tessel {

/// The tables of a tournament, by id, and the ids that the last batch of changes touched. What needs a table that is
/// not there throws `ObjectNotFoundException`.
class HERALD_API TournamentTables {
 public:
  /// Replaces the table whole: it has no ranked players until they are set again.
  void updateTable(int tableId, const std::wstring& name, int numberOfSeatedPlayers, bool isVIP,
                   const Money& minChipStack, const Money& maxChipStack);
  /// An id that has no table counts as touched, too.
  void removeTable(int id) { tables_.remove(id); }
  void clearTables() { tables_.clear(); }

  bool containsTable(int id) const { return tables_.find(id) != nullptr; }
  const TournamentTable& getTable(int id) const;
  /// Ascending.
  TsArray<int> getAllTableIds() const { return tables_.ids(); }

  /// Neither of the two counts as touching the table.
  void setRankedPlayers(int tableId, TsArray<RankedPlayer> players);
  void clearRankedPlayers(int tableId);

  /// In the order of the changes; an id may occur several times.
  const TsArray<int>& getModifiedTables() const { return tables_.modifiedIds(); }
  void resetModifiedTables() { tables_.resetModifiedIds(); }

 private:
  ModifiedMap<TournamentTable> tables_;
};

/// Looks at the tables under the model's lock.
class HERALD_API TournamentTablesReader {
 public:
  virtual ~TournamentTablesReader();
  virtual void read(const TournamentTables& tables) = 0;
};

}  // namespace Tessel
