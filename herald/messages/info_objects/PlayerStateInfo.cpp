#include <herald/messages/info_objects/InfoListOperations.h>
#include <herald/messages/info_objects/PlayerStateInfo.h>

namespace Tessel {

std::wstring PlayerStateInfo::toDebugString() const {
  return formatText(L"[PlayerStateInfo: iSeat=%d, iPlayerInfo=%s, iBets=%s, iIsSittingIn=%d, iIsSlow=%d]", seat_,
                    player_, betsNotInPot_, sittingIn_, slow_);
}

template class InfoList<PlayerStateInfo>;

}  // namespace Tessel
