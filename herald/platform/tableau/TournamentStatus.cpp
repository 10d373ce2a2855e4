#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/TournamentStatus.h>

namespace Tessel {

namespace {

using enum AllowedTournamentStatus;

constexpr TournamentStatus TOURNAMENT_STATUSES[] = {
    {UNKNOWN, L"Unknown status"},
    {ANNOUNCED, L"Announced"},
    {REGISTRATION_OPEN, L"Registration open"},
    {REGISTRATION_CLOSED, L"Registration closed"},
    {SEATING, L"Seating"},
    {RUNNING, L"Running"},
    {ON_BREAK, L"On break"},
    {COMPLETED, L"Completed"},
    {CANCELLED, L"Cancelled"},
};

}  // namespace

const TournamentStatus& TournamentStatusFactory::createTournamentStatus(AllowedTournamentStatus value) {
  return Constants::get<TOURNAMENT_STATUSES>(value);
}

}  // namespace Tessel
