#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/StartTournamentReply.h>

namespace Tessel {

StartTournamentReply::StartTournamentReply(ByteStream& in) { StartTournamentReply::read(in); }

std::wstring StartTournamentReply::toDebugString() const {
  return formatText(L"[StartTournamentReply - iStartResult =%d]", startResult_);
}

}  // namespace Tessel
