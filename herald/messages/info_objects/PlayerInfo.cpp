#include <herald/messages/info_objects/PlayerInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/BitMasking.h>

namespace Tessel {

PlayerInfo::PlayerInfo(int id, std::wstring_view nickName, std::wstring_view city, int ping, int gameId,
                       std::wstring_view teamName)
    : id_(id), nickName_(nickName), city_(city), ping_(ping), gameId_(gameId), teamName_(teamName) {}

bool PlayerInfo::hasSalonPage() const { return BitMasking::getBit(flags_, SALON_BIT); }

bool PlayerInfo::isVIP() const { return BitMasking::getBit(flags_, VIP_BIT); }

std::wstring PlayerInfo::toDebugString() const {
  return formatText(L"[PlayerInfo: Id=%d, Nick=%s, City=%s, ping=%d, game=%d, TeamName=%s]", id_, nickName_, city_,
                    ping_, gameId_, teamName_);
}

}  // namespace Tessel
