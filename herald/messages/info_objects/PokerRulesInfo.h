#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/List.h>
#include <herald/wire/Text.h>

namespace Tessel {

/// The rules of a table: its amounts, in its monetary unit, and what its tournament costs, in units of its own.
class HERALD_API PokerRulesInfo : public ReadableRecord<PokerRulesInfo> {
 public:
  std::wstring getGameDescription() const { return gameDescription_.getString(); }
  int getMonetaryUnitId() const { return monetaryUnitId_; }

  Money getMaxRake() const { return inUnit(maxRake_); }
  Money getBigBlind() const { return inUnit(bigBlind_); }
  /// The count as it came; a negative one has no values.
  int getNrChipStackValues() const { return nrChipStackValues_; }
  /// An index outside 0 to `getNrChipStackValues()` - 1 throws `OutOfBoundsException`.
  Money getChipStackValue(int i) const;
  Money getMinChipValue() const { return inUnit(minChipValue_); }
  Money getAnte() const { return inUnit(ante_); }
  Money getSmallBlind() const { return inUnit(smallBlind_); }
  Money getSmallBet() const { return inUnit(smallBet_); }
  Money getBigBet() const { return inUnit(bigBet_); }

  Money getTournamentBuyIn() const { return tournamentBuyIn_.getMoney(); }
  Money getTournamentFee() const { return tournamentFee_.getMoney(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("gameDescription", self.gameDescription_);
    fields("monetaryUnitId", self.monetaryUnitId_);
    fields("maxRake", self.maxRake_);
    fields("bigBlind", self.bigBlind_);
    fields.template countedKeeping<std::int32_t>("chipStackValues", self.nrChipStackValues_, self.chipStackValues_);
    fields("minChipValue", self.minChipValue_);
    fields("ante", self.ante_);
    fields("smallBlind", self.smallBlind_);
    fields("smallBet", self.smallBet_);
    fields("bigBet", self.bigBet_);
    fields("tournamentBuyIn", self.tournamentBuyIn_);
    fields("tournamentFee", self.tournamentFee_);
  }

 private:
  Money inUnit(const Amount& amount) const { return {amount.getAmount(), monetaryUnitId_}; }

  Text gameDescription_;
  std::int16_t monetaryUnitId_ = -1;
  Amount maxRake_;
  Amount bigBlind_;
  std::int32_t nrChipStackValues_ = 0;
  List<Amount> chipStackValues_;
  Amount minChipValue_;
  Amount ante_;
  Amount smallBlind_;
  Amount smallBet_;
  Amount bigBet_;
  MoneyAmount tournamentBuyIn_;
  MoneyAmount tournamentFee_;
};

}  // namespace Tessel
