#include <herald/SpecificTournamentModel/TournamentTables.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/Format.h>

namespace Tessel {

namespace {

// Logs and bug trackers know this failure by the line numbers given here, which therefore stay.
template <class Table>
Table& required(Table* table, int id, int line) {
  if (table == nullptr)
    throw ObjectNotFoundException(L"SpecificTournamentModel/TournamentTables", line,
                                  formatText(L"Tournament table with id %d", id));
  return *table;
}

}  // namespace

TournamentTablesReader::~TournamentTablesReader() = default;

void TournamentTables::updateTable(int tableId, const std::wstring& name, int numberOfSeatedPlayers, bool isVIP,
                                   const Money& minChipStack, const Money& maxChipStack) {
  TournamentTable table(tableId, name);
  table.setNumberOfSeatedPlayers(numberOfSeatedPlayers);
  table.setVIP(isVIP);
  table.setChipStacks(minChipStack, maxChipStack);
  tables_.set(tableId, std::move(table));
}

const TournamentTable& TournamentTables::getTable(int id) const { return required(tables_.find(id), id, 52); }

void TournamentTables::setRankedPlayers(int tableId, TsArray<RankedPlayer> players) {
  required(tables_.find(tableId), tableId, 106).setRankedPlayers(std::move(players));
}

void TournamentTables::clearRankedPlayers(int tableId) {
  required(tables_.find(tableId), tableId, 122).setRankedPlayers({});
}

}  // namespace Tessel
