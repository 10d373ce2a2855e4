#include <herald/messages/info_objects/LevelStructureInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring LevelStructureInfo::toDebugString() const {
  return formatText(L"[LevelStructureInfo: DurationMs=%li, DurationHands=%d, IsAdaptive=%d]", durationMs_,
                    durationHands_, isAdaptive_);
}

}  // namespace Tessel
