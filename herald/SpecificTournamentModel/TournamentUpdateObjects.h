#pragma once
#include <herald/platform/keystone/NotificationUpdateObject.h>
#include <herald/platform/keystone/TsArray.h>

#include <utility>

// What a tournament's model tells its observers: the class of the object names the part that changed. An object lives
// for the notification only; whoever needs it later clones it.

namespace Tessel {

/// The entrants, the remaining players or the average stack changed.
class HERALD_API TournamentBaseUpdateObject : public NotificationUpdateObject {
 public:
  using NotificationUpdateObject::NotificationUpdateObject;
  [[nodiscard]] NotificationUpdateObject* clone() const override;
};

/// The break schedule changed.
class HERALD_API TournamentBreakUpdateObject : public NotificationUpdateObject {
 public:
  using NotificationUpdateObject::NotificationUpdateObject;
  [[nodiscard]] NotificationUpdateObject* clone() const override;
};

/// The ranking changed.
class HERALD_API TournamentPlayerRankingUpdateObject : public NotificationUpdateObject {
 public:
  using NotificationUpdateObject::NotificationUpdateObject;
  [[nodiscard]] NotificationUpdateObject* clone() const override;
};

/// The current or the next level changed.
class HERALD_API TournamentLevelInformationUpdateObject : public NotificationUpdateObject {
 public:
  using NotificationUpdateObject::NotificationUpdateObject;
  [[nodiscard]] NotificationUpdateObject* clone() const override;
};

/// The summary changed, or the tournament was cancelled.
class HERALD_API TournamentGlobalInformationUpdateObject : public NotificationUpdateObject {
 public:
  using NotificationUpdateObject::NotificationUpdateObject;
  [[nodiscard]] NotificationUpdateObject* clone() const override;
};

/// The user's own standing changed.
class HERALD_API TournamentPlayerInformationUpdateObject : public NotificationUpdateObject {
 public:
  using NotificationUpdateObject::NotificationUpdateObject;
  [[nodiscard]] NotificationUpdateObject* clone() const override;
};

/// The rebuy or add-on state changed.
class HERALD_API TournamentRebuyUpdateObject : public NotificationUpdateObject {
 public:
  using NotificationUpdateObject::NotificationUpdateObject;
  [[nodiscard]] NotificationUpdateObject* clone() const override;
};

/// Registered players changed.
class HERALD_API TournamentRegisteredPlayersUpdateObject : public NotificationUpdateObject {
 public:
  TournamentRegisteredPlayersUpdateObject(const MVCModel& model, TsArray<int> modifiedPlayers)
      : NotificationUpdateObject(model), modifiedPlayers_(std::move(modifiedPlayers)) {}
  [[nodiscard]] NotificationUpdateObject* clone() const override;

  /// The ids that the batch touched, in the order of the changes; an id may occur several times.
  const TsArray<int>& getModifiedPlayers() const { return modifiedPlayers_; }

 private:
  TsArray<int> modifiedPlayers_;
};

/// Tables changed.
class HERALD_API TournamentTablesUpdateObject : public NotificationUpdateObject {
 public:
  TournamentTablesUpdateObject(const MVCModel& model, TsArray<int> modifiedTables)
      : NotificationUpdateObject(model), modifiedTables_(std::move(modifiedTables)) {}
  [[nodiscard]] NotificationUpdateObject* clone() const override;

  /// The ids that the batch touched, in the order of the changes; an id may occur several times.
  const TsArray<int>& getModifiedTables() const { return modifiedTables_; }

 private:
  TsArray<int> modifiedTables_;
};

/// The ranked players of one table changed.
class HERALD_API TournamentTableRankedPlayersUpdateObject : public NotificationUpdateObject {
 public:
  TournamentTableRankedPlayersUpdateObject(const MVCModel& model, int tableId)
      : NotificationUpdateObject(model), tableId_(tableId) {}
  [[nodiscard]] NotificationUpdateObject* clone() const override;

  int getTableId() const { return tableId_; }

 private:
  int tableId_;
};

}  // namespace Tessel
