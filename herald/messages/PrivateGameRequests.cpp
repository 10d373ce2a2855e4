#include <herald/messages/PrivateGameRequests.h>
#include <herald/messages/RequestOperations.h>

namespace Tessel {

std::wstring PGJoinGameReq::toDebugString() const {
  return formatText(L"[PGJoinGameReq: %s, %s]", player_, requestText_);
}

std::wstring PGPlayerJoinRequestReply::toDebugString() const {
  return formatText(L"[PGPlayerJoinRequestReply: %s], %i", status_, playerId_);
}

}  // namespace Tessel
