#include <herald/messages/info_objects/PlayerId.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring PlayerId::toDebugString() const { return formatText(L"[PlayerId: id=%d, seat=%d]", id_, seat_); }

}  // namespace Tessel
