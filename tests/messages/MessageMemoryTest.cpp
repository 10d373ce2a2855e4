#include <gtest/gtest.h>
#include <herald/mailboxes/MailBoxes.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/messages/LobbyEvents.h>
#include <tests/support/AllocationCount.h>
#include <tests/support/WireBytes.h>

#include <thread>

namespace Tessel {
namespace {

using namespace WireBytes;

constexpr const wchar_t* LONG_NAME = L"A name that is too long for its field";

// Games with names that take memory.
ByteStream gameList(int games) {
  ByteStream out;
  out << number16(1) << number16(games);
  for (int i = 0; i < games; ++i) {
    out << i << LONG_NAME << number16(2) << number16(9) << number16(4) << number16(1) << 80 << 6;
    out << byte(1) << byte(2) << number64(100) << number64(200) << byte(0);
  }
  return out;
}

std::unique_ptr<GameList> readGameList(int games) {
  ByteStream in = gameList(games);
  auto message = std::make_unique<GameList>();
  EXPECT_TRUE(message->read(in));
  return message;
}

TEST(MessageMemory, OutlivesNoRecordThatWasHandedOut) {
  auto message = readGameList(3);
  const PokerGameInfo game = message->getPokerGameInfo(1);
  const auto clone = message->getPokerGameInfo(2).cloneOwned();
  message.reset();
  EXPECT_EQ(game.getName(), LONG_NAME);
  EXPECT_EQ(static_cast<const PokerGameInfo&>(*clone).getName(), LONG_NAME);
}

TEST(MessageMemory, IsTakenByTheFirstReadAlone) {
#ifdef _WIN32
  GTEST_SKIP() << "the library's allocations cannot be counted here";
#endif
  const auto message = readGameList(3);
  const auto readAgain = [&](int games) {
    ByteStream in = gameList(games);
    EXPECT_TRUE(message->read(in));
  };
  readAgain(100);
  const int living = livingAllocations();
  for (int i = 0; i < 50; ++i) readAgain(100);
  EXPECT_EQ(livingAllocations(), living);
  EXPECT_EQ(message->getPokerGameInfo(99).getName(), LONG_NAME);
}

// For the thread sanitizer.
TEST(MessageMemory, IsGivenBackOnWhateverThreadDestroysTheMessage) {
  constexpr int MESSAGES = 200;
  PostOffice office;
  ClientMessageMailBox box(&office);
  std::thread reader([&box] {
    for (int i = 0; i < MESSAGES; ++i) {
      auto message = readGameList(20);
      const PokerGameInfo copy = message->getPokerGameInfo(19);
      box.post(std::move(message));
      EXPECT_EQ(copy.getName(), LONG_NAME);
    }
  });
  for (int received = 0; received < MESSAGES;) {
    office.waitForMail(1000);
    for (auto& message : box.pickupAll()) {
      EXPECT_EQ(static_cast<const GameList&>(*message).getPokerGameInfo(19).getName(), LONG_NAME);
      message.reset();
      ++received;
    }
  }
  reader.join();
}

}  // namespace
}  // namespace Tessel
