#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/TournamentSynchedEvent.h>

namespace Tessel {

namespace {

using enum AllowedTournamentSynchedEvent;

constexpr TournamentSynchedEvent TOURNAMENT_SYNCHED_EVENTS[] = {
    {UNKNOWN, L"Unknown event"},
    {WAITING_FOR_HANDS_TO_END, L"Waiting for the other tables to finish their hands"},
    {ALL_TABLES_READY, L"All tables are ready"},
    {WAITING_FOR_BREAK, L"Waiting for the break"},
    {WAITING_FOR_REBUYS, L"Waiting for rebuys"},
    {WAITING_FOR_ADDONS, L"Waiting for add-ons"},
};

}  // namespace

const TournamentSynchedEvent& TournamentSynchedEvent::getTournamentSynchedEvent(AllowedTournamentSynchedEvent value) {
  return Constants::get<TOURNAMENT_SYNCHED_EVENTS>(value);
}

}  // namespace Tessel
