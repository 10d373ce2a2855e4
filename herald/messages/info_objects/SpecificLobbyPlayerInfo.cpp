#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/SpecificLobbyPlayerInfo.h>

namespace Tessel {

std::wstring SpecificLobbyPlayerInfo::toDebugString() const {
  return formatText(
      L"[SpecificLobbyPlayerInfo: LargestStack=%s, AverageStack=%s, StatusInTour=%d, CurrentPosition=%d, "
      L"OwnChipStack=%s, UserTableId=%d]",
      largestStack_, averageStack_, statusInTour_, currentPosition_, ownChipStack_, userTableId_);
}

}  // namespace Tessel
