#include <herald/messages/info_objects/BlindLevelSpeedInfo.h>
#include <herald/messages/info_objects/InfoListOperations.h>

namespace Tessel {

BlindLevelSpeedInfo::BlindLevelSpeedInfo(ByteStream& in) { BlindLevelSpeedInfo::read(in); }

const BlindLevelSpeed& BlindLevelSpeedInfo::getBlindLevelSpeed() const {
  return BlindLevelSpeedFactory::createBlindLevelSpeed(AllowedBlindLevelSpeed{blindSpeed_.getIntValue()});
}

std::wstring BlindLevelSpeedInfo::toDebugString() const {
  return formatText(L"[BlindLevelSpeedInfo: Id=%d, BlindSpeed=%s, StartingChipStack=%s]", id_, blindSpeed_,
                    startingChipStack_);
}

template class InfoList<BlindLevelSpeedInfo>;

}  // namespace Tessel
