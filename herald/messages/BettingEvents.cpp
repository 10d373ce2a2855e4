#include <herald/messages/BettingEvents.h>
#include <herald/messages/MessageOperations.h>

namespace Tessel {

std::wstring ClientWin::toDebugString() const { return L"[ClientWin]"; }

std::wstring AllInProbabilityResults::toDebugString() const { return L"[AllInProbabilityResults]"; }

}  // namespace Tessel
