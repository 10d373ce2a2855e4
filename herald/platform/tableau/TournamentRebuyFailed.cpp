#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/TournamentRebuyFailed.h>

namespace Tessel {

namespace {

using enum AllowedTournamentRebuyFailed;

constexpr TournamentRebuyFailed REBUY_FAILURES[] = {
    {UNKNOWN, L"Unknown reason"},
    {NOT_ENOUGH_MONEY, L"Not enough money"},
    {PERIOD_ENDED, L"The rebuy period has ended"},
    {NO_REBUYS_LEFT, L"No rebuys are left"},
    {TOO_MANY_CHIPS, L"Too many chips for a rebuy"},
    {ADDON_ALREADY_TAKEN, L"The add-on has been taken already"},
    {NOT_IN_TOURNAMENT, L"Not a player of this tournament"},
    {SERVER_ERROR, L"The server could not complete the purchase"},
};

}  // namespace

const TournamentRebuyFailed& TournamentRebuyFailedFactory::createTournamentRebuyFailed(
    AllowedTournamentRebuyFailed value) {
  if (const TournamentRebuyFailed* constant = Constants::find<REBUY_FAILURES>(value)) return *constant;
  throw OutOfBoundsException(L"platform/tableau/TournamentRebuyFailed", __LINE__, L"value", -1,
                             Constants::highest(REBUY_FAILURES), static_cast<int>(value));
}

}  // namespace Tessel
