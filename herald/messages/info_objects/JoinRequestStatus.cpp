#include <herald/messages/info_objects/JoinRequestStatus.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

WritableReadableInfo::~WritableReadableInfo() = default;

std::wstring JoinRequestStatus::toDebugString() const {
  return formatText(L"[JoinRequestStatus: Status: %d]", status_);
}

}  // namespace Tessel
