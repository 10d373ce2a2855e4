#pragma once
#include <herald/platform/keystone/Money.h>

namespace Tessel {

/// A player's standing in a tournament.
class HERALD_API RankedPlayer {
 public:
  RankedPlayer() = default;
  RankedPlayer(int playerId, int position, std::wstring name, Money chipStack, bool isVIP);

  int getPlayerId() const { return playerId_; }
  /// The place in the ranking; the leader has 1.
  int getPosition() const { return position_; }
  const std::wstring& getName() const { return name_; }
  const Money& getChipStack() const { return chipStack_; }
  bool isVIP() const { return isVIP_; }

  bool operator==(const RankedPlayer&) const = default;

 private:
  int playerId_ = -1;
  int position_ = -1;
  std::wstring name_;
  Money chipStack_;
  bool isVIP_ = false;
};

}  // namespace Tessel
