#include <herald/messages/info_objects/JoinRequest.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring JoinRequest::toDebugString() const {
  return formatText(L"[JoinRequest: GameId=%d, PlayerId=%d]", gameId_, playerId_);
}

}  // namespace Tessel
