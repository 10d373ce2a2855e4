#pragma once
#include <herald/messages/info_objects/CardsInfo.h>
#include <herald/messages/info_objects/PlayerStateInfo.h>
#include <herald/messages/info_objects/PokerGameInfo.h>
#include <herald/messages/info_objects/PokerRulesInfo.h>

namespace Tessel {

/// The whole state of a table, as a client that joins it needs it.
class HERALD_API PokerGameStateInfo : public ReadableRecord<PokerGameStateInfo> {
 public:
  const PokerRulesInfo& getPokerRulesInfo() const { return rules_; }
  int getDealerSeat() const { return dealerSeat_; }
  /// In the smallest units of the table's currency, or in its chips, as the rake.
  std::int64_t getPotValue() const { return pot_.getAmount(); }
  int getCurrentBettingRound() const { return currentBettingRound_; }

  int getNrPlayers() const { return players_.getNrInfos(); }
  /// An index outside 0 to `getNrPlayers()` - 1 throws `OutOfBoundsException`.
  const PlayerStateInfo& getPlayerState(int i) const;
  bool isPlayerAtTable(int playerId) const;

  CardsInfo getCardsInfo() const { return cards_; }
  int getHandId() const { return handId_; }
  PokerGameInfo getPokerGameInfo() const { return game_; }
  std::int64_t getCurrentRake() const { return rake_.getAmount(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("rules", self.rules_);
    fields.requireMore();
    fields("dealerSeat", self.dealerSeat_);
    fields("pot", self.pot_);
    fields("currentBettingRound", self.currentBettingRound_);
    fields.ignoring("players", self.players_);
    fields("cards", self.cards_);
    fields.requireMore();
    fields("handId", self.handId_);
    fields("game", self.game_);
    fields.ignoring("rake", self.rake_);
  }

 private:
  PokerRulesInfo rules_;
  std::int32_t dealerSeat_ = -1;
  Amount pot_;
  std::int32_t currentBettingRound_ = -1;
  InfoList<PlayerStateInfo> players_;
  CardsInfo cards_;
  std::int32_t handId_ = -1;
  PokerGameInfo game_;
  Amount rake_;
};

}  // namespace Tessel
