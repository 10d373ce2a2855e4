#include <herald/messages/info_objects/PingInfoList.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring PingInfoList::toDebugString() const {
  return formatText(L"[PingInfoList: iNrInfos=%d, iGameId=%d]", getNrInfos(), gameId_);
}

}  // namespace Tessel
