// Mailboxes beside what one would write with the standard library alone.

#include <benchmark/benchmark.h>
#include <herald/mailboxes/LobbyToGameMessages.h>
#include <herald/mailboxes/MailBoxes.h>

#include <deque>
#include <memory>
#include <mutex>
#include <thread>

namespace {

using namespace Tessel;

class StandardBox {
 public:
  void post(std::unique_ptr<LobbyToGameMessage> message) {
    const std::lock_guard guard(lock_);
    queue_.push_back(std::move(message));
  }

  std::unique_ptr<LobbyToGameMessage> pickupOwned() {
    const std::lock_guard guard(lock_);
    if (queue_.empty()) return nullptr;
    std::unique_ptr<LobbyToGameMessage> message = std::move(queue_.front());
    queue_.pop_front();
    return message;
  }

 private:
  std::mutex lock_;
  std::deque<std::unique_ptr<LobbyToGameMessage>> queue_;
};

template <class Box>
void postAndPickup(benchmark::State& state) {
  Box box;
  auto message = std::unique_ptr<LobbyToGameMessage>(std::make_unique<BringTableToTop>());
  for (auto _ : state) {
    box.post(std::move(message));
    message = box.pickupOwned();
  }
}

template <class Box>
void producerAndConsumer(benchmark::State& state) {
  constexpr int MESSAGES = 200'000;
  for (auto _ : state) {
    Box box;
    std::thread producer([&box] {
      for (int i = 0; i < MESSAGES; ++i) box.post(std::make_unique<BringTableToTop>());
    });
    for (int received = 0; received < MESSAGES;) received += box.pickupOwned() != nullptr;
    producer.join();
  }
  state.SetItemsProcessed(state.iterations() * MESSAGES);
}

BENCHMARK(postAndPickup<LobbyToGameMailBox>);
BENCHMARK(postAndPickup<StandardBox>);
BENCHMARK(producerAndConsumer<LobbyToGameMailBox>)->UseRealTime();
BENCHMARK(producerAndConsumer<StandardBox>)->UseRealTime();

}  // namespace
