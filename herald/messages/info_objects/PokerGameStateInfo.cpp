#include <herald/messages/info_objects/PokerGameStateInfo.h>
#include <herald/messages/info_objects/RecordIndex.h>
#include <herald/messages/info_objects/RecordOperations.h>

#include <algorithm>

namespace Tessel {

const PlayerStateInfo& PokerGameStateInfo::getPlayerState(int i) const {
  checkRecordIndex(L"messages/info_objects/PokerGameStateInfo", i, getNrPlayers());
  return players_[i];
}

bool PokerGameStateInfo::isPlayerAtTable(int playerId) const {
  return std::ranges::any_of(players_, [&](const auto& state) { return state.player().getId() == playerId; });
}

std::wstring PokerGameStateInfo::toDebugString() const {
  return formatText(L"[PokerGameStateInfo: dealer=%d, pot=%s, round=%d, rake=%d, %s, %s, %s, %s]", dealerSeat_, pot_,
                    currentBettingRound_, rake_.getAmount(), rules_, players_, cards_, game_);
}

}  // namespace Tessel
