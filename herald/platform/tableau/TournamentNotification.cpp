#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/TournamentNotification.h>

namespace Tessel {

namespace {

using enum AllowedTournamentNotification;

constexpr TournamentNotification TOURNAMENT_NOTIFICATIONS[] = {
    {UNKNOWN, L"Unknown news"},
    {STARTED, L"The tournament has started"},
    {HAND_FOR_HAND_STARTED, L"Hand-for-hand play has started"},
    {HAND_FOR_HAND_ENDED, L"Hand-for-hand play has ended"},
    {IN_THE_MONEY, L"All remaining players are in the money"},
    {FINAL_TABLE, L"The final table has been reached"},
    {PAUSED, L"The tournament is paused"},
    {RESUMED, L"The tournament plays on"},
    {CANCELLED, L"The tournament has been cancelled"},
    {ENDED, L"The tournament has ended"},
};

}  // namespace

const TournamentNotification& TournamentNotificationFactory::createTournamentNotification(
    AllowedTournamentNotification value) {
  if (const TournamentNotification* constant = Constants::find<TOURNAMENT_NOTIFICATIONS>(value)) return *constant;
  throw OutOfBoundsException(L"platform/tableau/TournamentNotification", __LINE__, L"value", -1,
                             Constants::highest(TOURNAMENT_NOTIFICATIONS), static_cast<int>(value));
}

}  // namespace Tessel
