#pragma once
#include <herald/mailboxes/MailBox.h>
#include <herald/platform/keystone/BugReporter.h>

// Included by the source file of the mailboxes only, which compiles each mailbox once.

namespace Tessel {

template <class T, int N>
MailBox<T, N>::~MailBox() {
  locked([&] {
    const CallingOut messageDestructors(*this);
    while (!queue_.isEmpty()) {
      std::unique_ptr<T>(queue_.pop()).reset();
      tell(&PostOffice::pickup);
    }
  });
}

template <class T, int N>
std::vector<std::unique_ptr<T>> MailBox<T, N>::pickupAll() {
  return locked([&] {
    std::vector<std::unique_ptr<T>> messages;
    messages.reserve(static_cast<std::size_t>(queue_.size()));
    // What the post office posts meanwhile stays: the list never has to grow with a message in hand.
    while (messages.size() < messages.capacity() && !queue_.isEmpty()) messages.emplace_back(takeOldest());
    return messages;
  });
}

template <class T, int N>
void MailBox<T, N>::callOut(void (PostOffice::*event)()) {
  const CallingOut callingOut(*this);
  try {
    (postOffice_->*event)();
  } catch (...) {
    reportCurrentException(L"mailboxes/MailBox");
  }
}

}  // namespace Tessel
