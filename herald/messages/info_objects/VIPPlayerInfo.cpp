#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/VIPPlayerInfo.h>
#include <herald/platform/keystone/BitMasking.h>

namespace Tessel {

TsArray<int> VIPPlayerInfo::getVIPIcons() const {
  TsArray<int> icons;
  for (int bit = FIRST_ICON_BIT_IN_STATUS; bit <= LAST_ICON_BIT_IN_STATUS; ++bit) {
    if (BitMasking::getBit(vipType_, bit)) icons.add(bit);
  }
  if (icons.empty()) icons.add(FIRST_ICON_BIT_IN_STATUS);
  return icons;
}

std::wstring VIPPlayerInfo::toDebugString() const {
  return formatText(L"[ VIPPlayerInfo - PlayerId=%d, VIPType=%d iIsPlaying=%d, iName=%s, iVipStatus=%d]", playerId_,
                    vipType_, isPlaying_, vipName_, vipStatus_);
}

}  // namespace Tessel
