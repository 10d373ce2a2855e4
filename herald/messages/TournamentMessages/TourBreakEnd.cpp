#include <herald/messages/MessageOperations.h>
#include <herald/messages/TournamentMessages/TourBreakEnd.h>
#include <herald/platform/keystone/BugReporter.h>

namespace Tessel {

std::wstring TourBreakEnd::toDebugString() const { return L"[TourBreakEnd]"; }

bool TourBreakEnd::log() const {
  Log::append(toDebugString(), L"messages/TournamentMessages/TourBreakEnd", 5);
  return true;
}

}  // namespace Tessel
