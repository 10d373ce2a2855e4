// One message from its bytes through the factory to a handler, and its destruction, beside the decoding of its record
// alone.

#include <benchmark/benchmark.h>
#include <herald/dispatch/DefaultClientMessageHandler.h>
#include <herald/messages/BettingEvents.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/platform/keystone/ByteStream.h>

#include <cstdlib>
#include <new>

namespace {
long allocations = 0;
}

// GCC takes these two for a mismatched pair where it has inlined one of them only.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

using namespace Tessel;

constexpr int CLIENT_BET_DONE = 12;
constexpr std::int16_t BATCH = 1000;

class Handler : public DefaultClientMessageHandler {
 public:
  using DefaultClientMessageHandler::handle;
  void handle(const AbusiveChatWarning&) override {}
  void handle(const ClientBetDone& message) override { chips += message.getCreditInfo().getAmount(); }

  std::int64_t chips = 0;
};

// A stream of many bodies, which is read to its end and then copied again.
ByteStream bodies() {
  ByteStream bodies;
  for (std::int16_t i = 0; i < BATCH; ++i) bodies << std::int32_t{7} << std::int8_t{3} << std::int64_t{250};
  return bodies;
}

void clientBetDone(benchmark::State& state) {
  const ByteStream source = bodies();
  Handler handler;
  long counted = 0;
  for (auto _ : state) {
    ByteStream in = source;
    const long before = allocations;
    while (!in.eos())
      AbstractClientMessageHandler::handle(handler, ClientMessageFactory::byteArrayToMessage(CLIENT_BET_DONE, in));
    counted += allocations - before;
  }
  benchmark::DoNotOptimize(handler.chips);
  state.SetItemsProcessed(state.iterations() * BATCH);
  state.counters["allocations/message"] =
      static_cast<double>(counted) / static_cast<double>(state.iterations() * BATCH);
}

void creditInfoAlone(benchmark::State& state) {
  const ByteStream source = bodies();
  std::int64_t chips = 0;
  for (auto _ : state) {
    ByteStream in = source;
    while (!in.eos()) {
      CreditInfo record;
      record.read(in);
      chips += record.getAmount();
    }
  }
  benchmark::DoNotOptimize(chips);
  state.SetItemsProcessed(state.iterations() * BATCH);
}

BENCHMARK(clientBetDone);
BENCHMARK(creditInfoAlone);

}  // namespace
