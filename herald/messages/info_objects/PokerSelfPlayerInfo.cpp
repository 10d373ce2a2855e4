#include <herald/messages/info_objects/PokerSelfPlayerInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

PokerSelfPlayerInfo::PokerSelfPlayerInfo(std::int64_t value, const SelfPlayerInfo& player) : value_(value) {
  SelfPlayerInfo::operator=(player);
}

std::wstring PokerSelfPlayerInfo::toDebugString() const {
  return formatText(L"[PokerSelfPlayerInfo: %s]", SelfPlayerInfo::toDebugString());
}

}  // namespace Tessel
