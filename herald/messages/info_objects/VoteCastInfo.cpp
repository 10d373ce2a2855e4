#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/VoteCastInfo.h>

namespace Tessel {

std::wstring VoteCastInfo::toDebugString() const {
  return formatText(L"[VoteCastInfo: PlayerId: %li, Status: %d, NumberOfVotes: %li]", playerId_, status_,
                    numberOfVotes_);
}

}  // namespace Tessel
