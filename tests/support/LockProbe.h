#pragma once
#include <gtest/gtest.h>
#include <herald/platform/keystone/MVCModel.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <future>
#include <thread>
#include <utility>
#include <vector>

namespace Tessel {

using Operations = std::vector<std::function<void()>>;

/// Starts operations of a model on other threads while a notification, and with it the model's lock, lasts: none of
/// them may end before it does.
class LockProbe : public MVCObserver {
 public:
  LockProbe(MVCModel& model, Operations operations, const std::function<void()>& notifyingChange)
      : operations_(std::move(operations)) {
    model.addObserver(*this);
    notifyingChange();
    model.removeObserver(*this);
  }

  void update(const NotificationUpdateObject&) override {
    if (!running_.empty()) return;
    for (const auto& operation : operations_) running_.push_back(std::async(std::launch::async, operation));
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    for (std::size_t i = 0; i < running_.size(); ++i)
      EXPECT_EQ(running_[i].wait_for(std::chrono::seconds(0)), std::future_status::timeout) << "operation " << i;
  }

 private:
  const Operations operations_;
  std::vector<std::future<void>> running_;
};

}  // namespace Tessel
