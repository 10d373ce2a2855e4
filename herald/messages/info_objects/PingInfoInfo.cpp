#include <herald/messages/info_objects/InfoListOperations.h>
#include <herald/messages/info_objects/PingInfoInfo.h>

namespace Tessel {

bool PingInfoInfo::write(ByteStream&) const { return false; }

std::wstring PingInfoInfo::toDebugString() const {
  return formatText(L"[PingInfoInfo: nick=%s, ping=%d, money at table=%s]", nick_, ping_, moneyAtTable_);
}

template class InfoList<PingInfoInfo>;

}  // namespace Tessel
