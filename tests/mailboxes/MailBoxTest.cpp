#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/AllocationCount.h>
#include <tests/support/RecordingSink.h>

#include <atomic>
#include <new>
#include <stdexcept>
#include <thread>

namespace Tessel {
namespace {

std::atomic<int> living = 0;

// A message of the smallest family that says who posted it and as which of the poster's.
class Posted : public BringTableToTop {
 public:
  Posted(int fromPoster, int itsNumber) : poster(fromPoster), number(itsNumber) { ++living; }
  Posted(const Posted&) = delete;
  Posted& operator=(const Posted&) = delete;
  ~Posted() override { --living; }

  int poster;
  int number;
};

int numberOf(const std::unique_ptr<LobbyToGameMessage>& message) { return static_cast<const Posted&>(*message).number; }

class CountingPostOffice : public PostOffice {
 public:
  void post() override {
    ++posts;
    PostOffice::post();
  }
  void pickup() override {
    ++pickups;
    livingAtPickup = living;
    PostOffice::pickup();
  }

  int posts = 0;
  int pickups = 0;
  int livingAtPickup = 0;
};

TEST(MailBox, KeepsTheOrderTellsThePostOfficeAndDeletesWhatIsLeft) {
  CountingPostOffice office;
  {
    LobbyToGameMailBox box(&office);
    EXPECT_TRUE(box.isEmpty());
    for (int number = 0; number < 100; ++number) box.post(new Posted(0, number));
    EXPECT_FALSE(box.isEmpty());
    for (int number = 0; number < 40; ++number) EXPECT_EQ(numberOf(box.pickupOwned()), number);
    const auto rest = box.pickupAll();
    ASSERT_EQ(rest.size(), 60u);
    for (int i = 0; i < 60; ++i) EXPECT_EQ(numberOf(rest[static_cast<std::size_t>(i)]), 40 + i);
    EXPECT_TRUE(box.isEmpty());
    EXPECT_EQ(box.pickup(), nullptr);
    EXPECT_EQ(office.pickups, 100) << "an empty mailbox does not tell the post office";

    box.post(static_cast<LobbyToGameMessage*>(nullptr));
    box.post(std::make_unique<Posted>(0, 1));
    EXPECT_EQ(office.getMailCount(), 2);
  }
  EXPECT_EQ(office.livingAtPickup, 0) << "the destructor deletes a message before it tells of it";
  EXPECT_EQ(office.posts, 102);
  EXPECT_EQ(office.pickups, 102) << "the destructor tells of each entry, null included";
  EXPECT_EQ(living, 0);
}

// The room for messages begins with 16 and doubles. Where the oldest stands in it must not matter.
TEST(MailBox, KeepsTheOrderFromAnyPlaceInItsRing) {
  for (const int count : {15, 16, 17, 33}) {
    for (int start = 0; start < 17; ++start) {
      LobbyToGameMailBox box;
      for (int number = 0; number < start; ++number) box.post(new Posted(0, number));
      for (int number = 0; number < start; ++number) EXPECT_TRUE(box.pickupOwned());
      for (int number = 0; number < count; ++number) box.post(new Posted(0, number));
      for (int number = 0; number < count; ++number) ASSERT_EQ(numberOf(box.pickupOwned()), number) << count << start;
    }
  }
}

TEST(MailBox, IsAsItWasWhenMemoryRunsOut) {
#ifdef _WIN32
  GTEST_SKIP() << "the library's allocations cannot be made to fail here";
#endif
  PostOffice office;
  LobbyToGameMailBox box(&office);
  for (int number = 0; number < 16; ++number) box.post(new Posted(0, number));
  auto message = std::make_unique<Posted>(0, 16);
  const auto postWithoutMemory = [&] {
    const WithoutMemory lasting;
    box.post(message.get());
  };
  EXPECT_THROW(postWithoutMemory(), std::bad_alloc);
  EXPECT_EQ(office.getMailCount(), 16);
  box.post(std::move(message));
  for (int number = 0; number <= 16; ++number) EXPECT_EQ(numberOf(box.pickupOwned()), number);
  EXPECT_EQ(living, 0);
}

template <class Box>
int mailOfOneMessage() {
  PostOffice office;
  Box box(&office);
  [&]<class T>(MailBox<T, 1>& base) { base.post(static_cast<T*>(nullptr)); }(box);
  return office.getMailCount();
}

template <class... Boxes>
std::vector<int> mailOfEach() {
  return {mailOfOneMessage<Boxes>()...};
}

TEST(MailBox, EachOfTheSevenTellsItsPostOffice) {
  const auto counts = mailOfEach<BasicTexasStatControllerMessageMailBox, ClientMessageMailBox, GameModelNotifMailbox,
                                 LobbyToGameMailBox, PlayerNotesSubscriberMailBox, ServerViewMailbox,
                                 TournamentLobbyControllerMailbox>();
  EXPECT_EQ(counts, std::vector<int>(7, 1));
}

TEST(MailBox, WorksWithoutAPostOfficeAndWithMessagesWithoutAVirtualDestructor) {
  GameModelNotifMailbox box(nullptr);
  box.post(std::make_unique<GMLobby>(1));
  box.post(new GMLeave(2, GMLeave::ReasonForLeaving{3}, 4));
  EXPECT_EQ(box.pickupOwned()->getGameId(), 1);
}

TEST(MailBox, APostOfficeMayCallBackIntoTheMailbox) {
  class Nosy : public PostOffice {
   public:
    void post() override {
      foundMail = !box->isEmpty() && box->pickupOwned() != nullptr;
      foundMore = !box->pickupAll().empty();  // takes the lock in any case
    }
    void pickup() override { emptyAtPickup = box->isEmpty(); }
    LobbyToGameMailBox* box = nullptr;
    bool emptyAtPickup = false;
    bool foundMail = false;
    bool foundMore = true;
  } office;
  LobbyToGameMailBox box(&office);
  office.box = &box;
  box.post(new Posted(0, 1));
  EXPECT_TRUE(office.foundMail && !office.foundMore);
  EXPECT_TRUE(office.emptyAtPickup) << "the post office is told when the message is out";
  EXPECT_TRUE(box.isEmpty());
}

TEST(MailBox, APostOfficeThatThrowsIsReportedAndLosesNothing) {
  class Throwing : public PostOffice {
   public:
    void post() override { throw std::runtime_error("closed"); }
    void pickup() override { throw std::runtime_error("closed"); }
  } office;
  const WithRecordingSink recording;
  {
    LobbyToGameMailBox box(&office);
    for (int number = 0; number < 4; ++number) box.post(new Posted(0, number));
    EXPECT_EQ(numberOf(box.pickupOwned()), 0);
    EXPECT_EQ(box.pickupAll().size(), 3u);
    box.post(new Posted(0, 4));
  }
  EXPECT_EQ(living, 0);
  EXPECT_EQ(recording.sink->reports.size(), 10u) << "of each of five messages, in and out";
}

TEST(MailBox, PickingAllUpLeavesWhatThePostOfficePostsMeanwhile) {
  class Echo : public PostOffice {
   public:
    void pickup() override {
      if (box != nullptr) box->post(new Posted(0, 1));
    }
    LobbyToGameMailBox* box = nullptr;
  } office;
  LobbyToGameMailBox box(&office);
  office.box = &box;
  for (int i = 0; i < 3; ++i) box.post(new Posted(0, i));
  EXPECT_EQ(box.pickupAll().size(), 3u);
  office.box = nullptr;
  EXPECT_EQ(box.pickupAll().size(), 3u);
}

TEST(MailBox, ManyProducersOneConsumer) {
  constexpr int POSTERS = 4;
  constexpr int MESSAGES = 250'000;  // of each
  CountingPostOffice office;         // Its counts have no guard but the mailbox's lock.
  auto box = std::make_unique<LobbyToGameMailBox>(&office);
  std::vector<std::thread> posters;
  posters.reserve(POSTERS);
  for (int poster = 0; poster < POSTERS; ++poster) {
    posters.emplace_back([&box, poster] {
      for (int number = 0; number < MESSAGES; ++number) box->post(new Posted(poster, number));
    });
  }
  int next[POSTERS] = {};
  bool inOrder = true;
  for (int received = 0; received < POSTERS * MESSAGES - 10;) {
    const std::unique_ptr<LobbyToGameMessage> message = box->pickupOwned();
    if (!message) {
      office.waitForMail(1000);
      continue;
    }
    const auto& posted = static_cast<const Posted&>(*message);
    inOrder = inOrder && posted.number == next[posted.poster];
    ++next[posted.poster];
    ++received;
  }
  for (std::thread& poster : posters) poster.join();
  EXPECT_TRUE(inOrder);
  EXPECT_EQ(office.getMailCount(), 10);
  EXPECT_EQ(living, 10);
  box.reset();
  EXPECT_EQ(office.getMailCount(), 0);
  EXPECT_EQ(office.posts, POSTERS * MESSAGES);
  EXPECT_EQ(office.pickups, POSTERS * MESSAGES);
  EXPECT_EQ(living, 0);
}

}  // namespace
}  // namespace Tessel
