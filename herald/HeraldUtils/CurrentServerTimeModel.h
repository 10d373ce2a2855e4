#pragma once
#include <herald/platform/keystone/MVCModel.h>
#include <herald/platform/keystone/NotificationUpdateObject.h>
#include <herald/platform/keystone/TsTime.h>

#include <cstdint>

namespace Tessel {

class CurrentServerTimeUpdateVisitor;

/// The server's clock, estimated from one synchronisation and the tick counter. One instance for the process; its
/// operations are safe from any thread.
class HERALD_API CurrentServerTimeModel : public MVCModel {
 public:
  ~CurrentServerTimeModel() override;

  static CurrentServerTimeModel* getInstance();

  /// Takes the time unless the clock is synchronised already or the time is negative, and notifies the observers in
  /// every case with a `CurrentServerTimeUpdateObject`.
  static void setCurrentServerTime(TsTime time);

  /// The estimate, in whole seconds; without meaning before the first time was taken. When it sees that the 32-bit tick
  /// counter has wrapped, it counts on, and the next server time is taken.
  static TsTime getTime();

 private:
  CurrentServerTimeModel();

  void synchronise(TsTime time);
  TsTime estimate();

  static CurrentServerTimeModel& staticInstance;

  TsTime serverTime_{-1};
  std::int64_t tickCount_ = 0;
  bool resynchronisationWanted_ = true;
};

/// The server's clock was set.
class HERALD_API CurrentServerTimeUpdateObject : public NotificationUpdateObject {
 public:
  using NotificationUpdateObject::NotificationUpdateObject;
  [[nodiscard]] NotificationUpdateObject* clone() const override;
  /// Passes the object to the visitor's operation.
  virtual void accept(CurrentServerTimeUpdateVisitor& visitor) const;
};

class HERALD_API CurrentServerTimeUpdateVisitor {
 public:
  virtual ~CurrentServerTimeUpdateVisitor();
  virtual void visit(const CurrentServerTimeUpdateObject& update) = 0;
};

}  // namespace Tessel
