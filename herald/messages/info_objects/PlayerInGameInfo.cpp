#include <herald/messages/info_objects/PlayerInGameInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

PlayerInGameInfo::PlayerInGameInfo(int id, std::wstring_view nickName, std::wstring_view city,
                                   const Money& moneyAtTable, int ping, int gameId, std::wstring_view teamName)
    : ReadableWritableRecord(id, nickName, city, ping, gameId, teamName), moneyAtTable_(moneyAtTable) {}

std::wstring PlayerInGameInfo::toDebugString() const { return L"[PlayerInGameInfo: ]"; }

}  // namespace Tessel
