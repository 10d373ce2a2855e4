#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/TableNotificationEvent.h>

namespace Tessel {

namespace {

using enum AllowedTableNotificationEvent;

constexpr TableNotificationEvent TABLE_NOTIFICATION_EVENTS[] = {
    {UNKNOWN, L"Unknown event"},
    {WAITING_FOR_PLAYERS, L"Waiting for players"},
    {WAITING_FOR_OTHER_TABLES, L"Waiting for the other tables"},
    {HAND_FOR_HAND, L"Playing hand for hand"},
    {PAUSED, L"The table is paused"},
    {RESUMED, L"The table plays on"},
    {BREAKING_UP, L"The table is broken up"},
    {FINAL_TABLE, L"This is the final table"},
};

}  // namespace

const TableNotificationEvent& TableNotificationEventFactory::createTableNotificationEvent(
    AllowedTableNotificationEvent value) {
  return Constants::get<TABLE_NOTIFICATION_EVENTS>(value);
}

}  // namespace Tessel
