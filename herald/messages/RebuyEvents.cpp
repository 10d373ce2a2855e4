#include <herald/messages/MessageOperations.h>
#include <herald/messages/RebuyEvents.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

std::wstring TournamentPlayerNoRebuyNotification::toDebugString() const {
  return formatText(L"[TournamentPlayerNoRebuyNotification: PlayerName=%s, IsAddon=%s]", playerId_, isAddon_);
}

const TournamentRebuyFailed& TourRebuyFailedMsg::getReason() const {
  try {
    return TournamentRebuyFailedFactory::createTournamentRebuyFailed(
        AllowedTournamentRebuyFailed{body().getIntValue()});
  } catch (const KVRException& unknownReason) {
    unknownReason.report();
    return TournamentRebuyFailedFactory::createTournamentRebuyFailed(AllowedTournamentRebuyFailed::UNKNOWN);
  }
}

}  // namespace Tessel
