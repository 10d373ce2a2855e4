#include <herald/messages/info_objects/RebuyInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/StringUtils.h>

namespace Tessel {

std::wstring RebuyInfo::toDebugString() const {
  return formatText(
      L"[RebuyInfo: NumberOfRebuys=%d, DurationMs=%s, HasAddon=%d, iRebuy=%s, iRebuyCost=%s, iAddon=%s, iAddonCost=%s]",
      numberOfRebuys_, StringUtils::int64ToString(durationMs_), hasAddon_, rebuy_, rebuyCost_, addon_, addonCost_);
}

}  // namespace Tessel
