#pragma once
#include <herald/platform/keystone/Export.h>

namespace Tessel {

class MVCModel;

/// What a model tells its observers: by its class, which part of the model changed. It lives for the notification only;
/// an observer that needs it later clones it.
class HERALD_API NotificationUpdateObject {
 public:
  explicit NotificationUpdateObject(const MVCModel& model);
  virtual ~NotificationUpdateObject();
  /// A new copy, of the same class, that the caller owns.
  [[nodiscard]] virtual NotificationUpdateObject* clone() const;

  /// The model that changed. A clone does not keep it alive.
  const MVCModel& getModel() const { return *model_; }

 protected:
  NotificationUpdateObject(const NotificationUpdateObject&) = default;
  NotificationUpdateObject(NotificationUpdateObject&&) = default;
  NotificationUpdateObject& operator=(const NotificationUpdateObject&) = default;
  NotificationUpdateObject& operator=(NotificationUpdateObject&&) = default;

 private:
  const MVCModel* model_;
};

}  // namespace Tessel
