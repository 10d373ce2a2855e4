#include <herald/messages/info_objects/PrizeStructureInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

const PrizeStructureType& PrizeStructureInfo::getPrizeStructureType() const {
  return PrizeStructureType::getPrizeStructureType(AllowedPrizeStructureType{prizeStructureType_});
}

std::wstring PrizeStructureInfo::toDebugString() const {
  return formatText(
      L"[PrizeStructureInfo: NumPlayersInPayout=%d, PrizePool=%s, PrizeStructureType=%d, AddedCash=%s, "
      L"GuaranteedCash=%s]",
      numPlayersInPayout_, prizePool_, prizeStructureType_, addedCash_, guaranteedCash_);
}

}  // namespace Tessel
