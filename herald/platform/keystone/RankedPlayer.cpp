#include <herald/platform/keystone/RankedPlayer.h>

#include <utility>

namespace Tessel {

RankedPlayer::RankedPlayer(int playerId, int position, std::wstring name, Money chipStack, bool isVIP)
    : playerId_(playerId), position_(position), name_(std::move(name)), chipStack_(chipStack), isVIP_(isVIP) {}

}  // namespace Tessel
