#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/CreatePrivateTournamentError.h>

namespace Tessel {

namespace {

using enum AllowedCreatePrivateTournamentError;

constexpr CreatePrivateTournamentError CREATE_PRIVATE_TOURNAMENT_ERRORS[] = {
    {UNKNOWN, L"Unknown error"},
    {NONE, L"The tournament has been created"},
    {NAME_NOT_ALLOWED, L"The name is not allowed"},
    {NAME_IN_USE, L"The name is in use"},
    {START_TIME_NOT_ALLOWED, L"The start time is not allowed"},
    {BUY_IN_NOT_ALLOWED, L"The buy-in is not allowed"},
    {SETTINGS_NOT_ALLOWED, L"These settings are not allowed together"},
    {TOO_MANY_TOURNAMENTS, L"Too many private tournaments"},
    {NOT_PERMITTED, L"Not permitted to create tournaments"},
    {SERVER_ERROR, L"The server could not create the tournament"},
};

}  // namespace

const CreatePrivateTournamentError& CreatePrivateTournamentErrorFactory::createCreatePrivateTournamentError(
    AllowedCreatePrivateTournamentError value) {
  return Constants::get<CREATE_PRIVATE_TOURNAMENT_ERRORS>(value);
}

}  // namespace Tessel
