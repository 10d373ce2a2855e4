// Mailboxes beside what one would write with the standard library alone, and with a post office beside without.

#include <benchmark/benchmark.h>
#include <herald/mailboxes/LobbyToGameMessages.h>
#include <herald/mailboxes/MailBoxes.h>

#include <chrono>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace {

using namespace Tessel;

using Message = std::unique_ptr<LobbyToGameMessage>;

class DequeBox {
 public:
  void post(Message message) {
    const std::lock_guard guard(lock_);
    queue_.push_back(std::move(message));
  }

  Message pickupOwned() {
    const std::lock_guard guard(lock_);
    if (queue_.empty()) return nullptr;
    Message message = std::move(queue_.front());
    queue_.pop_front();
    return message;
  }

 private:
  std::mutex lock_;
  std::deque<Message> queue_;
};

class SwapBox {
 public:
  void post(Message message) {
    const std::lock_guard guard(lock_);
    queue_.push_back(std::move(message));
  }

  std::vector<Message> pickupAll() {
    std::vector<Message> taken;
    const std::lock_guard guard(lock_);
    taken.swap(queue_);
    return taken;
  }

 private:
  std::mutex lock_;
  std::vector<Message> queue_;
};

struct Office {
  PostOffice office;
};

// The office comes first and goes last.
class PostOfficeBox : private Office, public LobbyToGameMailBox {
 public:
  PostOfficeBox() : LobbyToGameMailBox(&office) {}
};

// The standard library leaves out what guards against other threads in a process that has one only.
void parkThread() {
  static const std::jthread parked([](const std::stop_token& stop) {
    while (!stop.stop_requested()) std::this_thread::sleep_for(std::chrono::milliseconds(50));
  });
}

template <class Box>
void pair(benchmark::State& state) {
  parkThread();
  Box box;
  Message message = std::make_unique<BringTableToTop>();
  for (auto _ : state) {
    box.post(std::move(message));
    message = box.pickupOwned();
  }
}

template <class Box>
void stream(benchmark::State& state) {
  constexpr int MESSAGES = 1'000'000;
  for (auto _ : state) {
    Box box;
    std::thread producer([&box] {
      for (int i = 0; i < MESSAGES; ++i) box.post(std::make_unique<BringTableToTop>());
    });
    for (int received = 0; received < MESSAGES;) {
      if (box.pickupOwned())
        ++received;
      else
        std::this_thread::yield();
    }
    producer.join();
  }
  state.SetItemsProcessed(state.iterations() * MESSAGES);
}

template <class Box>
void batch(benchmark::State& state) {
  constexpr int MESSAGES = 100;
  parkThread();
  Box box;
  for (int i = 0; i < MESSAGES; ++i) box.post(std::make_unique<BringTableToTop>());
  for (auto _ : state) {
    std::vector<Message> messages = box.pickupAll();
    for (Message& message : messages) box.post(std::move(message));
  }
}

BENCHMARK(pair<LobbyToGameMailBox>)->Name("mailbox/pair/herald");
BENCHMARK(pair<PostOfficeBox>)->Name("mailbox/pair/postoffice");
BENCHMARK(pair<DequeBox>)->Name("mailbox/pair/deque");
BENCHMARK(stream<LobbyToGameMailBox>)->Name("mailbox/stream/herald")->UseRealTime()->Iterations(1);
BENCHMARK(stream<PostOfficeBox>)->Name("mailbox/stream/postoffice")->UseRealTime()->Iterations(1);
BENCHMARK(stream<DequeBox>)->Name("mailbox/stream/deque")->UseRealTime()->Iterations(1);
BENCHMARK(batch<LobbyToGameMailBox>)->Name("mailbox/batch/herald");
BENCHMARK(batch<PostOfficeBox>)->Name("mailbox/batch/postoffice");
BENCHMARK(batch<SwapBox>)->Name("mailbox/batch/swap");

}  // namespace
