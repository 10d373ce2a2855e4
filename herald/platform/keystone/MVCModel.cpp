#include <herald/platform/keystone/BugReporter.h>
#include <herald/platform/keystone/MVCModel.h>

#include <algorithm>

namespace Tessel {

namespace {

void callReportingExceptions(MVCObserver& observer, const NotificationUpdateObject& update) {
  try {
    observer.update(update);
  } catch (...) {
    reportCurrentException(L"platform/keystone/MVCModel");
  }
}

}  // namespace

/// Counts a notification as running while it lives; the end of the outermost one takes out what was removed meanwhile.
class MVCModel::Notification {
 public:
  explicit Notification(MVCModel& model) : model_(model) { ++model_.runningNotifications_; }
  ~Notification() {
    if (--model_.runningNotifications_ == 0) std::erase(model_.observers_, nullptr);
  }
  Notification(const Notification&) = delete;
  Notification& operator=(const Notification&) = delete;

 private:
  MVCModel& model_;
};

MVCObserver::~MVCObserver() = default;

MVCModel::MVCModel() = default;
MVCModel::~MVCModel() = default;

void MVCModel::addObserver(MVCObserver& observer) {
  const std::lock_guard guard(lock_);
  if (std::find(observers_.begin(), observers_.end(), &observer) == observers_.end()) observers_.push_back(&observer);
}

void MVCModel::removeObserver(MVCObserver& observer) {
  const std::lock_guard guard(lock_);
  const auto place = std::find(observers_.begin(), observers_.end(), &observer);
  if (place == observers_.end()) return;
  // A running notification counts places, so they must not move under it.
  if (runningNotifications_ > 0) {
    *place = nullptr;
  } else {
    observers_.erase(place);
  }
}

void MVCModel::notifyObservers(const NotificationUpdateObject& update) {
  const std::lock_guard guard(lock_);
  const Notification running(*this);
  const std::size_t observersBefore = observers_.size();
  for (std::size_t place = 0; place < observersBefore; ++place)
    if (MVCObserver* observer = observers_[place]) callReportingExceptions(*observer, update);
}

}  // namespace Tessel
