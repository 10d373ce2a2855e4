#pragma once
#include <herald/platform/keystone/NotificationUpdateObject.h>

#include <cstddef>
#include <mutex>
#include <vector>

namespace Tessel {

/// Is told of the changes of the models that it was added to. It is called with the model's lock held: see `MVCModel`
/// for what it may do then, and what would wait for ever.
class HERALD_API MVCObserver {
 public:
  virtual ~MVCObserver();
  virtual void update(const NotificationUpdateObject& update) = 0;
};

/// Base of observable models. One recursive lock guards the model's data, its list of observers and its notifications:
/// each notification runs on the thread that made the change, with the lock held, so that two threads' notifications do
/// not mix and an observer reads the model as the change left it. An observer must therefore not wait for another
/// thread that uses the same model, nor use another model: two threads that change two models whose observers read each
/// other's wait for each other for ever. An observer that needs more than the model that calls it posts the change (a
/// `clone` of the update) into a mailbox, and reads the models where the mailbox is emptied, with no lock held.
///
/// Within a notification an observer may
/// - remove itself or another: whoever is removed is not called any more, in the running notification either;
/// - add an observer: it is called from the next notification on (so is one that was removed and added again);
/// - read the model;
/// - change the model: the new notification goes to all observers at once, and then the outer one goes on;
/// - throw: the exception is reported to `BugReporter`, and the other observers are called as if it had not been
/// thrown.
class HERALD_API MVCModel {
 public:
  virtual ~MVCModel();
  MVCModel(const MVCModel&) = delete;
  MVCModel& operator=(const MVCModel&) = delete;

  /// The observer is not owned, is called in the order of adding, and must be removed before it is destroyed. Adding it
  /// a second time does nothing.
  void addObserver(MVCObserver& observer);

  /// Once this has returned, the observer is not called again; a call on another thread has been waited for. The
  /// exception is an observer that removes itself from within its own call, which then runs to its end. Removing an
  /// observer that was not added does nothing.
  void removeObserver(MVCObserver& observer);

 protected:
  MVCModel();

  /// The model's lock. The thread that holds it may take it again.
  std::recursive_mutex& getLock() const { return lock_; }

  /// Calls the observers, in the order in which they were added.
  void notifyObservers(const NotificationUpdateObject& update);

 private:
  class Notification;

  mutable std::recursive_mutex lock_;
  /// Null stands for an observer that was removed during a notification, until the outermost one has ended.
  std::vector<MVCObserver*> observers_;
  int runningNotifications_ = 0;
};

}  // namespace Tessel
