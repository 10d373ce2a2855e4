#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/NamedValue.h>
#include <herald/platform/tableau/TournamentType.h>

namespace Tessel::Tourney {

namespace {

using enum TournamentType;

constexpr NamedValue<TournamentType> NAMES[] = {
    {UNKNOWN, L"Unknown"},
    {SIT_AND_GO, L"Sit & Go"},
    {SCHEDULED, L"Scheduled"},
};

}  // namespace

std::wstring_view getName(TournamentType value) { return Constants::get<NAMES>(value).getName(); }

}  // namespace Tessel::Tourney
