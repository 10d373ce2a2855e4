#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/tableau/NamedValue.h>

namespace Tessel {

enum class AllowedTableNotificationEvent : int {
  UNKNOWN = -1,
  WAITING_FOR_PLAYERS,
  WAITING_FOR_OTHER_TABLES,
  HAND_FOR_HAND,
  PAUSED,
  RESUMED,
  BREAKING_UP,
  FINAL_TABLE
};

/// What happens to the tournament table at which the user sits.
class HERALD_API TableNotificationEvent : public NamedValue<AllowedTableNotificationEvent> {
 public:
  using NamedValue::NamedValue;
};

class HERALD_API TableNotificationEventFactory {
 public:
  /// The constant of a value; for a value without a name that of `UNKNOWN`.
  static const TableNotificationEvent& createTableNotificationEvent(AllowedTableNotificationEvent value);
};

}  // namespace Tessel
