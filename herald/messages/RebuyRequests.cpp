#include <herald/messages/RebuyRequests.h>
#include <herald/messages/RequestOperations.h>

namespace Tessel {

std::wstring TournamentRebuyReplyMsg::toDebugString() const {
  return formatText(L"[OldTournamentRebuyReplyMsg: TourId=%s, Accept=%s]", tourId_, accept_);
}

}  // namespace Tessel
