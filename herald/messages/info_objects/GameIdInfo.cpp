#include <herald/messages/info_objects/GameIdInfo.h>
#include <herald/messages/info_objects/RecordIndex.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

int GameIdInfo::getId(int i) const {
  checkRecordIndex(L"messages/info_objects/GameIdInfo", i, getNrIds());
  return ids_[static_cast<std::size_t>(i)];
}

std::wstring GameIdInfo::toDebugString() const { return L"[GameIdInfo: ]"; }

}  // namespace Tessel
