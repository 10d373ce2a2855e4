#include <herald/messages/info_objects/CancelTourReply.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

CancelTourReply::CancelTourReply(ByteStream& in) { CancelTourReply::read(in); }

std::wstring CancelTourReply::toDebugString() const {
  return formatText(L"[CancelTourReply - iCancelResult =%d]", cancelResult_);
}

}  // namespace Tessel
