#include <herald/messages/info_objects/ClientSatInInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

ClientSatInInfo::ClientSatInInfo(int playerId, ClientSatInStatus status)
    : playerId_(playerId), resittingIn_(status == ClientSatInStatus::RESITTING_IN) {}

std::wstring ClientSatInInfo::toDebugString() const {
  return formatText(L"[ClientSatInInfo: Player ID: %d, Resitting In: %d]", playerId_, resittingIn_);
}

}  // namespace Tessel
