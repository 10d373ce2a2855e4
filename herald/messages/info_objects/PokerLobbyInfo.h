#pragma once
#include <herald/messages/info_objects/LobbyInfo.h>
#include <herald/messages/info_objects/PokerRulesInfo.h>

namespace Tessel {

/// A poker table as its lobby shows it, with its rules and statistics. Throws what `LobbyInfo` throws, and
/// `KeystoneException` when one of its two records cannot be read.
class HERALD_API PokerLobbyInfo : public ReadableRecord<PokerLobbyInfo, LobbyInfo> {
 public:
  const PokerRulesInfo& getPokerRules() const { return rules_; }
  /// In the smallest units of the table's currency, or in its chips.
  std::int64_t getAveragePot() const { return averagePot_.getAmount(); }
  int getHandsPerHour() const { return handsPerHour_; }
  int getPlayersFlop() const { return playersFlop_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    LobbyInfo::wire(self, fields);
    require(fields.succeeded(), L"Failed to read LobbyInfo.");
    fields("rules", self.rules_);
    require(fields.succeeded(), L"Failed to read PokerRulesInfo.");
    fields("averagePot", self.averagePot_);
    fields("handsPerHour", self.handsPerHour_);
    fields("playersFlop", self.playersFlop_);
  }

 private:
  static void require(bool isRead, const wchar_t* failure);

  PokerRulesInfo rules_;
  Amount averagePot_;
  std::int32_t handsPerHour_ = -1;
  std::int32_t playersFlop_ = -1;
};

}  // namespace Tessel
