#include <herald/messages/info_objects/PigIDInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring PigIDInfo::toDebugString() const {
  return formatText(L"[PigIDInfo: NickName=%s, GameId=%d]", nickName_, gameId_);
}

}  // namespace Tessel
