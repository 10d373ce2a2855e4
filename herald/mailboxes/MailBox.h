#pragma once
#include <herald/mailboxes/MessageQueue.h>
#include <herald/platform/keystone/PostOffice.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace Tessel {

/// The hand-over point of messages between threads: any thread posts, one consumer picks up, in the order of posting. T
/// is the base class of a message family. Every operation is safe from any thread and holds the mailbox's lock for its
/// whole work, the call into the post office included; that lock is recursive, so the post office may call back into
/// the mailbox.
template <class T, int>
class HERALD_API MailBox {
 public:
  /// The post office is told of every message in and out; null for none. It is not owned and must outlive the mailbox.
  explicit MailBox(PostOffice* postOffice = nullptr) : postOffice_(postOffice) {}
  MailBox(const MailBox&) = delete;
  MailBox& operator=(const MailBox&) = delete;
  /// Deletes what is still queued and tells the post office of each.
  virtual ~MailBox();

  /// A snapshot, read without the lock.
  bool isEmpty() const { return count_.load(std::memory_order_acquire) == 0; }

  /// Takes ownership of the message. Null is queued, too, and comes back as null. When memory runs out,
  /// `std::bad_alloc` leaves the queue and the post office as they were and the message the caller's.
  void post(T* message);
  /// The same; a message that could not be queued is destroyed.
  void post(std::unique_ptr<T> message);

  /// The oldest message, which is the caller's now, or null when there is none.
  T* pickup();
  std::unique_ptr<T> pickupOwned() { return std::unique_ptr<T>(pickup()); }
  /// All that is queued, the oldest first, taken under one lock.
  std::vector<std::unique_ptr<T>> pickupAll();

 private:
  void announce();
  T* takeOldest();

  std::recursive_mutex lock_;
  MessageQueue<T> queue_;
  std::atomic<int> count_ = 0;
  PostOffice* postOffice_;
};

}  // namespace Tessel
