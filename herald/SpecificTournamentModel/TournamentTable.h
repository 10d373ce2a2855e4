#pragma once
#include <herald/platform/keystone/Money.h>
#include <herald/platform/keystone/RankedPlayer.h>
#include <herald/platform/keystone/TsArray.h>

#include <string>
#include <utility>

namespace Tessel {

/// A table of a tournament with the ranked players at it.
class HERALD_API TournamentTable {
 public:
  TournamentTable() = default;
  TournamentTable(int tableId, std::wstring tableName) : tableId_(tableId), tableName_(std::move(tableName)) {}

  int getTableId() const { return tableId_; }
  std::wstring getTableName() const { return tableName_; }
  int getNumberOfSeatedPlayers() const { return numberOfSeatedPlayers_; }
  void setNumberOfSeatedPlayers(int number) { numberOfSeatedPlayers_ = number; }
  bool isVIPTable() const { return isVIP_; }
  void setVIP(bool isVIP) { isVIP_ = isVIP; }
  Money getMinChipStack() const { return minChipStack_; }
  Money getMaxChipStack() const { return maxChipStack_; }
  void setChipStacks(const Money& min, const Money& max) {
    minChipStack_ = min;
    maxChipStack_ = max;
  }
  const TsArray<RankedPlayer>& getRankedPlayers() const { return rankedPlayers_; }
  void setRankedPlayers(TsArray<RankedPlayer> players) { rankedPlayers_ = std::move(players); }

 private:
  int tableId_ = -1;
  std::wstring tableName_;
  int numberOfSeatedPlayers_ = 0;
  bool isVIP_ = false;
  Money minChipStack_;
  Money maxChipStack_;
  TsArray<RankedPlayer> rankedPlayers_;
};

}  // namespace Tessel
