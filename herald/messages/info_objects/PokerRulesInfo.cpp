#include <herald/messages/info_objects/PokerRulesInfo.h>
#include <herald/messages/info_objects/RecordIndex.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

Money PokerRulesInfo::getChipStackValue(int i) const {
  checkRecordIndex(L"messages/info_objects/PokerRulesInfo", i, chipStackValues_.size(), nrChipStackValues_);
  return inUnit(chipStackValues_[static_cast<std::size_t>(i)]);
}

std::wstring PokerRulesInfo::toDebugString() const {
  return formatText(
      L"[PokerRulesInfo: description=%s, monetary unit: %d, big blind=%d, nr chip stack values=%d, chip stack "
      L"values=%s, min chip value=%s, ante=%s, small blind=%s, small bet=%s, big bet=%s, tourBuyIn=%s, tourFee=%s]",
      gameDescription_, monetaryUnitId_, bigBlind_.getAmount(), nrChipStackValues_, joinDebugTexts(chipStackValues_),
      minChipValue_, ante_, smallBlind_, smallBet_, bigBet_, tournamentBuyIn_, tournamentFee_);
}

}  // namespace Tessel
