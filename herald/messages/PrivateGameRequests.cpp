#include <herald/messages/PrivateGameRequests.h>
#include <herald/messages/RequestOperations.h>

namespace Tessel {

std::wstring PGJoinGameReq::toDebugString() const { return format(L"[PGJoinGameReq: %s, %s]", player_, requestText_); }

std::wstring PGPlayerJoinRequestReply::toDebugString() const {
  return format(L"[PGPlayerJoinRequestReply: %s], %i", status_, playerId_);
}

}  // namespace Tessel
