#pragma once
#include <herald/platform/keystone/Export.h>

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <mutex>

namespace Tessel {

/// Apart by so many bytes, what different threads write does not travel between their caches together.
inline constexpr std::size_t CACHE_LINE = 64;

/// Counts the mail of the mailboxes bound to it, so that a consumer can wait for mail in any of them. All operations
/// are safe from any thread. `post` and `pickup` are called with a mailbox's lock held: an application that overrides
/// them, to wake its own event loop for instance, must not wait there for a thread that uses the mailbox.
class HERALD_API PostOffice {
 public:
  PostOffice();
  virtual ~PostOffice();
  PostOffice(const PostOffice&) = delete;
  PostOffice& operator=(const PostOffice&) = delete;

  /// A message went into a mailbox: counts it and wakes whoever waits.
  virtual void post();
  /// A message left a mailbox. Without mail this does nothing.
  virtual void pickup();

  int getMailCount() const;

  /// Waits until there is mail, for at most that many milliseconds, and answers whether there is. Takes nothing out of
  /// the count. 0 or less asks without waiting.
  bool waitForMail(int timeoutMs);

 private:
  alignas(CACHE_LINE) std::atomic<int> mailCount_ = 0;
  std::atomic<int> waiting_ = 0;
  std::mutex lock_;
  std::condition_variable mailArrived_;
};

}  // namespace Tessel
