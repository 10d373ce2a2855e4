#include <herald/messages/info_objects/BetRequestInfo.h>
#include <herald/messages/info_objects/RecordIndex.h>
#include <herald/messages/info_objects/RecordOperations.h>

#include <algorithm>

namespace Tessel {

namespace {
constexpr const wchar_t* FILE_NAME = L"messages/info_objects/BetRequestInfo";
}

int BetRequestInfo::getReqSeat(int i) const {
  checkRecordIndex(FILE_NAME, i, getNrReqSeats());
  return requestedSeats_[static_cast<std::size_t>(i)];
}

bool BetRequestInfo::isSeatRequested(int seat) const {
  return std::ranges::find(requestedSeats_, seat) != requestedSeats_.end();
}

const PlayerActionsInfo* BetRequestInfo::getPlayerActionsInfo(int i) const {
  checkRecordIndex(FILE_NAME, i, getNrPlayerActionsInfos());
  return &playerActions_[static_cast<std::size_t>(i)];
}

const PlayerActionsInfo* BetRequestInfo::getPlayerActionsInfoForSeat(int seat) const {
  const auto actions = std::ranges::find(playerActions_, seat, &PlayerActionsInfo::getSeat);
  return actions == playerActions_.end() ? nullptr : &*actions;
}

std::wstring BetRequestInfo::toDebugString() const { return L"[BetRequestInfo: ]"; }

}  // namespace Tessel
