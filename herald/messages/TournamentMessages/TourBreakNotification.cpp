#include <herald/messages/MessageOperations.h>
#include <herald/messages/TournamentMessages/TourBreakNotification.h>
#include <herald/platform/keystone/BugReporter.h>
#include <herald/platform/keystone/StringUtils.h>

namespace Tessel {

std::wstring TourBreakNotification::toDebugString() const {
  return formatText(L"[TourBreakNotification iMsUntilBreak=%s, BreakDuration=%s]",
                    StringUtils::int64ToString(msUntilBreak_), StringUtils::int64ToString(breakDuration_));
}

bool TourBreakNotification::log() const {
  Log::append(toDebugString(), L"messages/TournamentMessages/TourBreakNotification", 5);
  return true;
}

}  // namespace Tessel
