#pragma once
#include <herald/mailboxes/MailBox.h>

// Included by the source file of the mailboxes only, which compiles each mailbox once.

namespace Tessel {

template <class T, int N>
MailBox<T, N>::~MailBox() {
  const std::lock_guard guard(lock_);
  while (queue_.size() > 0) std::unique_ptr<T>(takeOldest()).reset();
}

template <class T, int N>
void MailBox<T, N>::post(T* message) {
  const std::lock_guard guard(lock_);
  queue_.push(message);
  announce();
}

template <class T, int N>
void MailBox<T, N>::post(std::unique_ptr<T> message) {
  const std::lock_guard guard(lock_);
  queue_.push(message.get());
  static_cast<void>(message.release());
  announce();
}

template <class T, int N>
void MailBox<T, N>::announce() {
  count_.store(queue_.size(), std::memory_order_release);
  if (postOffice_ != nullptr) postOffice_->post();
}

template <class T, int N>
T* MailBox<T, N>::pickup() {
  const std::lock_guard guard(lock_);
  return queue_.size() > 0 ? takeOldest() : nullptr;
}

template <class T, int N>
std::vector<std::unique_ptr<T>> MailBox<T, N>::pickupAll() {
  const std::lock_guard guard(lock_);
  std::vector<std::unique_ptr<T>> messages;
  messages.reserve(static_cast<std::size_t>(queue_.size()));
  while (queue_.size() > 0) messages.emplace_back(takeOldest());
  return messages;
}

template <class T, int N>
T* MailBox<T, N>::takeOldest() {
  T* const message = queue_.pop();
  count_.store(queue_.size(), std::memory_order_release);
  if (postOffice_ != nullptr) postOffice_->pickup();
  return message;
}

}  // namespace Tessel
