#pragma once
#include <herald/mailboxes/MessageQueue.h>
#include <herald/platform/keystone/BugReporter.h>
#include <herald/platform/keystone/PostOffice.h>

#include <atomic>
#include <cstddef>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace Tessel {

/// While a mailbox calls out under its lock, what it calls may come back on the same thread. Noting the thread only
/// then makes the lock recursive at the price of a plain one. It takes no order among threads: the one value that a
/// thread acts on is the one that it wrote itself.
class MailBoxCallingOut {
 public:
  explicit MailBoxCallingOut(std::atomic<std::thread::id>& calling)
      : calling_(calling), outer_(calling.load(std::memory_order_relaxed)) {
    calling_.store(std::this_thread::get_id(), std::memory_order_relaxed);
  }
  ~MailBoxCallingOut() { calling_.store(outer_, std::memory_order_relaxed); }
  MailBoxCallingOut(const MailBoxCallingOut&) = delete;
  MailBoxCallingOut& operator=(const MailBoxCallingOut&) = delete;

 private:
  std::atomic<std::thread::id>& calling_;
  std::thread::id outer_;
};

/// The hand-over point of messages between threads: any thread posts, one consumer picks up, in the order of posting. T
/// is the base class of a message family. Every operation is safe from any thread and holds the mailbox's lock for its
/// whole work, the call into the post office included; that lock is recursive, so the post office may call back into
/// the mailbox. What the post office throws is reported to `BugReporter`; the message is in, or out, all the same.
/// An application that has a message family of its own uses `MailBox<ItsFamily, 1>`.
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
  bool isEmpty() const { return queue_.isEmpty(); }

  /// Takes ownership of the message. Null is queued, too, and comes back as null. When memory runs out,
  /// `std::bad_alloc` leaves the queue and the post office as they were and the message the caller's; nothing else
  /// comes out of it.
  void post(T* message);
  /// The same; a message that could not be queued is destroyed.
  void post(std::unique_ptr<T> message);

  /// The oldest message, which is the caller's now, or null when there is none.
  [[nodiscard]] T* pickup();
  [[nodiscard]] std::unique_ptr<T> pickupOwned() { return std::unique_ptr<T>(pickup()); }
  /// All that is queued, the oldest first, taken under one lock. The post office is told of each when all are out.
  [[nodiscard]] std::vector<std::unique_ptr<T>> pickupAll();

 private:
  bool isCalledBack() const {
    const std::thread::id calling = calling_.load(std::memory_order_relaxed);
    return calling != std::thread::id() && calling == std::this_thread::get_id();
  }

  // Held by the operation that makes it, unless a caller further up on this thread holds it already.
  std::unique_lock<std::mutex> hold() {
    return isCalledBack() ? std::unique_lock<std::mutex>() : std::unique_lock(lock_);
  }

  void tell(void (PostOffice::*event)()) {
    if (postOffice_ == nullptr) return;
    const MailBoxCallingOut callingOut(calling_);
    try {
      (postOffice_->*event)();
    } catch (...) {
      reportCurrentException(L"mailboxes/MailBox");
    }
  }
  T* takeOldest();

  alignas(CACHE_LINE) std::mutex lock_;
  std::atomic<std::thread::id> calling_ = std::thread::id();
  MessageQueue<T> queue_;
  PostOffice* postOffice_;
};

template <class T, int N>
inline void MailBox<T, N>::post(T* message) {
  const auto held = hold();
  queue_.push(message);
  tell(&PostOffice::post);
}

template <class T, int N>
inline void MailBox<T, N>::post(std::unique_ptr<T> message) {
  const auto held = hold();
  queue_.push(message.get());
  static_cast<void>(message.release());
  tell(&PostOffice::post);
}

template <class T, int N>
inline T* MailBox<T, N>::pickup() {
  if (isEmpty()) return nullptr;  // so that a consumer who polls does not hold up those who post
  const auto held = hold();
  return queue_.isEmpty() ? nullptr : takeOldest();
}

template <class T, int N>
inline T* MailBox<T, N>::takeOldest() {
  T* const message = queue_.pop();
  tell(&PostOffice::pickup);
  return message;
}

template <class T, int N>
MailBox<T, N>::~MailBox() {
  const auto held = hold();
  const MailBoxCallingOut messageDestructors(calling_);
  while (!queue_.isEmpty()) {
    std::unique_ptr<T>(queue_.pop()).reset();
    tell(&PostOffice::pickup);
  }
}

template <class T, int N>
std::vector<std::unique_ptr<T>> MailBox<T, N>::pickupAll() {
  const auto held = hold();
  std::vector<std::unique_ptr<T>> messages = queue_.popAll();
  for (std::size_t told = 0; postOffice_ != nullptr && told < messages.size(); ++told) tell(&PostOffice::pickup);
  return messages;
}

}  // namespace Tessel
