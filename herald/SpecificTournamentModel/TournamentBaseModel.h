#pragma once
#include <herald/platform/keystone/Export.h>

#include <cstdint>

namespace Tessel {

/// How many entered a tournament, how many still play, and what they have on average. All -1 while unknown.
class HERALD_API TournamentBaseModel {
 public:
  int getNumberOfEntrants() const { return numberOfEntrants_; }
  void setNumberOfEntrants(int number) { numberOfEntrants_ = number; }
  int getNumberOfPlayersRemaining() const { return numberOfPlayersRemaining_; }
  void setNumberOfPlayersRemaining(int number) { numberOfPlayersRemaining_ = number; }
  /// In chips.
  std::int64_t getAverageChipStack() const { return averageChipStack_; }
  void setAverageChipStack(std::int64_t chips) { averageChipStack_ = chips; }

  bool operator==(const TournamentBaseModel&) const = default;

 private:
  int numberOfEntrants_ = -1;
  int numberOfPlayersRemaining_ = -1;
  std::int64_t averageChipStack_ = -1;
};

}  // namespace Tessel
