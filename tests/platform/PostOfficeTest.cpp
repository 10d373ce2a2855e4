#include <gtest/gtest.h>
#include <herald/platform/keystone/PostOffice.h>

#include <chrono>
#include <latch>
#include <thread>

namespace Tessel {
namespace {

// Longer than any test takes: reaching it means that a wake-up was lost.
constexpr int LONG_MS = 20'000;

TEST(PostOffice, CountsTheMail) {
  PostOffice office;
  office.pickup();
  EXPECT_EQ(office.getMailCount(), 0);
  for (const int timeoutMs : {0, -1, 1}) EXPECT_FALSE(office.waitForMail(timeoutMs));
  office.post();
  office.post();
  office.pickup();
  EXPECT_EQ(office.getMailCount(), 1);
  for (const int timeoutMs : {0, -1, LONG_MS}) EXPECT_TRUE(office.waitForMail(timeoutMs));
  EXPECT_EQ(office.getMailCount(), 1);
}

TEST(PostOfficeThreads, CountsEveryMailOfTwoProducers) {
  constexpr int MAILS = 20'000;
  PostOffice office;
  std::latch start(2);
  const auto produce = [&] {
    start.arrive_and_wait();
    for (int i = 0; i < MAILS; ++i) office.post();
  };
  const std::jthread producers[] = {std::jthread(produce), std::jthread(produce)};
  for (int i = 0; i < 2 * MAILS; ++i) {
    ASSERT_TRUE(office.waitForMail(LONG_MS));
    ASSERT_GE(office.getMailCount(), 1);
    office.pickup();
  }
  EXPECT_EQ(office.getMailCount(), 0);
}

TEST(PostOfficeThreads, WakesAllWhoWait) {
  const auto start = std::chrono::steady_clock::now();
  {
    PostOffice office;
    const auto wait = [&] { EXPECT_TRUE(office.waitForMail(LONG_MS)); };
    std::jthread waiting[] = {std::jthread(wait), std::jthread(wait), std::jthread(wait)};
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    office.post();
    for (std::jthread& thread : waiting) thread.join();
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(LONG_MS / 2));
}

TEST(PostOfficeThreads, WakesAWaitingConsumerEachTime) {
  constexpr int ROUNDS = 2'000;
  PostOffice there, back;
  const auto takeOne = [](PostOffice& office) {
    const bool arrived = office.waitForMail(LONG_MS);
    office.pickup();
    return arrived;
  };
  const std::jthread echo([&] {
    for (int i = 0; i < ROUNDS && takeOne(there); ++i) back.post();
  });
  for (int i = 0; i < ROUNDS; ++i) {
    there.post();
    ASSERT_TRUE(takeOne(back)) << i;
  }
}

}  // namespace
}  // namespace Tessel
