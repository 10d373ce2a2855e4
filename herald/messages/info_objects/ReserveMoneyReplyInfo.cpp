#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/ReserveMoneyReplyInfo.h>

namespace Tessel {

std::wstring ReserveMoneyReplyInfo::toDebugString() const {
  return formatText(L"[ReserveMoneyReplyInfo: ReserveStatus: %d, PlayerInGameInfo:%s]", reserveStatus_, player_);
}

}  // namespace Tessel
