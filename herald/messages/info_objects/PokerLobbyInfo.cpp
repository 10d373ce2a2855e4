#include <herald/messages/info_objects/PokerLobbyInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

void PokerLobbyInfo::require(bool isRead, const wchar_t* failure) {
  if (!isRead) throw KeystoneException(L"messages/info_objects/PokerLobbyInfo", __LINE__, failure);
}

std::wstring PokerLobbyInfo::toDebugString() const {
  return formatText(L"[PokerLobbyInfo: base=%s, rules=%s, avg.pot=%d, hands/hour=%d, players flop=%d]",
                    LobbyInfo::toDebugString(), rules_, averagePot_.getAmount(), handsPerHour_, playersFlop_);
}

}  // namespace Tessel
