#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/NamedValue.h>
#include <herald/platform/tableau/StatusInTour.h>

namespace Tessel {

namespace {

using enum StatusInTour;

constexpr NamedValue<StatusInTour> NAMES[] = {
    {UNKNOWN, L"Unknown"},
    {NOT_PLAYING, L"Not playing"},
    {WAITING_FOR_START, L"Waiting for the start"},
    {PLAYING, L"Playing"},
    {WAITING_FOR_SEAT, L"Waiting for a seat"},
    {KNOCKED_OUT, L"Knocked out"},
    {FINISHED, L"Finished"},
};

}  // namespace

std::wstring_view getName(StatusInTour value) { return Constants::get<NAMES>(value).getName(); }

}  // namespace Tessel
