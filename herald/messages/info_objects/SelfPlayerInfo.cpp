#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/SelfPlayerInfo.h>

namespace Tessel {

std::wstring SelfPlayerInfo::toDebugString() const {
  return formatText(L"[SelfPlayerInfo: id=%d, nickname=%s, city=%s]", id_, nickName_, city_);
}

}  // namespace Tessel
