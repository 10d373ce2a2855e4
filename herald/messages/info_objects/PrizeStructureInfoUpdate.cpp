#include <herald/messages/info_objects/PrizeStructureInfo.h>
#include <herald/messages/info_objects/PrizeStructureInfoUpdate.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

void PrizeStructureInfoUpdate::update(PrizeStructureInfo& prizeStructure) const {
  prizeStructure.numPlayersInPayout_ = numPlayersInPayout_;
  if (prizeStructure.prizePool_.getMonetaryUnitId() != prizePool_.getMonetaryUnitId()) {
    KeystoneException(L"messages/info_objects/PrizeStructureInfoUpdate", __LINE__,
                      L"Trying to update prize pool with different monetary unit id.")
        .report();
    return;
  }
  prizeStructure.prizePool_ = prizePool_;
}

std::wstring PrizeStructureInfoUpdate::toDebugString() const {
  return formatText(L"[PrizeStructureInfoUpdate: NumPlayersInPayout=%d, PrizePool=%s]", numPlayersInPayout_,
                    prizePool_);
}

}  // namespace Tessel
