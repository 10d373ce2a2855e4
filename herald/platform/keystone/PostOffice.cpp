#include <herald/platform/keystone/PostOffice.h>

#include <chrono>

namespace Tessel {

PostOffice::PostOffice() = default;
PostOffice::~PostOffice() = default;

void PostOffice::post() {
  const std::lock_guard guard(lock_);
  ++mailCount_;
  mailArrived_.notify_all();
}

void PostOffice::pickup() {
  const std::lock_guard guard(lock_);
  if (mailCount_ > 0) --mailCount_;
}

int PostOffice::getMailCount() const {
  const std::lock_guard guard(lock_);
  return mailCount_;
}

bool PostOffice::waitForMail(int timeoutMs) {
  std::unique_lock guard(lock_);
  return mailArrived_.wait_for(guard, std::chrono::milliseconds(timeoutMs), [this] { return mailCount_ > 0; });
}

}  // namespace Tessel
