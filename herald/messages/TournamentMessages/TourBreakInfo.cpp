#include <herald/messages/MessageOperations.h>
#include <herald/messages/TournamentMessages/TourBreakInfo.h>
#include <herald/platform/keystone/BugReporter.h>

namespace Tessel {

std::wstring TourBreakInfo::toDebugString() const {
  return formatText(
      L"[TourBreakInfo: iRemainingTime=%li, iNumberOfEntrants=%d, iNumberOfRemainingPlayers=%d, iAverageChipStack=%s]",
      remainingMs_, numberOfEntrants_, numberOfRemainingPlayers_, averageChipStack_);
}

bool TourBreakInfo::log() const {
  Log::append(toDebugString(), L"messages/TournamentMessages/TourBreakInfo", 5);
  return true;
}

}  // namespace Tessel
