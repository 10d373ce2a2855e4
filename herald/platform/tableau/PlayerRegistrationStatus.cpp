#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/NamedValue.h>
#include <herald/platform/tableau/PlayerRegistrationStatus.h>

namespace Tessel {

namespace {

using enum PlayerRegistrationStatus;

constexpr NamedValue<PlayerRegistrationStatus> NAMES[] = {
    {UNKNOWN, L"Unknown"},
    {NOT_REGISTERED, L"Not registered"},
    {IS_REGISTERED, L"Registered"},
    {WAITING, L"On the waiting list"},
    {NOT_ALLOWED, L"Not allowed to register"},
};

}  // namespace

std::wstring_view getName(PlayerRegistrationStatus value) { return Constants::get<NAMES>(value).getName(); }

}  // namespace Tessel
