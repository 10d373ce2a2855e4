#include <herald/platform/keystone/PostOffice.h>

#include <chrono>

namespace Tessel {

PostOffice::PostOffice() = default;
PostOffice::~PostOffice() = default;

// Whoever waits says so before it looks at the count, and this counts before it looks for who waits: one of the two
// sees the other.
void PostOffice::post() {
  ++mailCount_;
  if (waiting_ == 0) return;
  const std::lock_guard guard(lock_);  // so that nobody is between the look and the wait
  mailArrived_.notify_all();
}

void PostOffice::pickup() {
  int count = mailCount_;
  while (count > 0 && !mailCount_.compare_exchange_weak(count, count - 1)) {
  }
}

int PostOffice::getMailCount() const { return mailCount_; }

bool PostOffice::waitForMail(int timeoutMs) {
  if (mailCount_ > 0) return true;
  std::unique_lock guard(lock_);
  ++waiting_;
  const bool arrived =
      mailArrived_.wait_for(guard, std::chrono::milliseconds(timeoutMs), [this] { return mailCount_ > 0; });
  --waiting_;
  return arrived;
}

}  // namespace Tessel
