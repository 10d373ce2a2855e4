#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/WinPotInfo.h>

namespace Tessel {

const PotType& WinPotInfo::getPotType() const { return PotType::getPotType(static_cast<AllowedPotType>(potType_)); }

std::wstring WinPotInfo::toDebugString() const {
  return formatText(L"[WinPotInfo: PotType=%d %s %s ]", potType_, credit_, handValue_);
}

}  // namespace Tessel
