#pragma once
#include <herald/platform/keystone/MVCModel.h>

#include <memory>

namespace Tessel {

/// Takes an observer away from the model that it was added to.
struct ObserverRemoval {
  MVCObserver* observer = nullptr;
  void operator()(MVCModel* model) const { model->removeObserver(*observer); }
};

/// An observer's place at a model, given up when this object is destroyed or assigned to. It is moved, not copied. The
/// model and the observer must outlive it; an observer that holds it as its last member does. An observer has at most
/// one at a model: a second one would end with the first.
class Subscription {
 public:
  /// Observes nothing.
  Subscription() = default;
  Subscription(MVCModel& model, MVCObserver& observer) : place_(&model, ObserverRemoval{&observer}) {
    model.addObserver(observer);
  }

  bool isActive() const { return place_ != nullptr; }
  /// As `MVCModel::removeObserver`: once this has returned, the observer is not called again.
  void end() { place_.reset(); }

 private:
  std::unique_ptr<MVCModel, ObserverRemoval> place_;
};

}  // namespace Tessel
