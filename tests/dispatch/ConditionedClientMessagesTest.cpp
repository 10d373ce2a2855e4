#include <gtest/gtest.h>
#include <herald/herald.h>

#include <functional>
#include <stdexcept>

namespace Tessel {
namespace {

int living = 0;

// Counts its instances, so that a leak or a second destruction shows.
class Numbered : public ClientSatIn {
 public:
  explicit Numbered(int number) {
    ++living;
    ByteStream body;
    body << number << false;
    read(body);
  }
  Numbered(const Numbered&) = delete;
  Numbered& operator=(const Numbered&) = delete;
  ~Numbered() override { --living; }
};

class Handler : public DefaultClientMessageHandler {
 public:
  using DefaultClientMessageHandler::handle;
  void handle(const AbusiveChatWarning&) override {}
  void handle(const ClientSatIn& message) override {
    delivered.push_back(message.getInfo().getPlayerID());
    if (onDelivery) onDelivery(delivered.back());
  }

  std::vector<int> delivered;
  std::function<void(int)> onDelivery;
};

using Numbers = std::vector<int>;

class ConditionedClientMessagesTest : public testing::Test {
 protected:
  ~ConditionedClientMessagesTest() override { EXPECT_EQ(living, 0); }

  Handler handler;
};

TEST_F(ConditionedClientMessagesTest, HoldsUntilEveryConditionIsMetAndThenKeepsTheOrder) {
  ConditionedClientMessages held(handler, 2);
  EXPECT_TRUE(held.delayMessage(new Numbered(1)));
  EXPECT_TRUE(held.delayMessage(new Numbered(2)));
  held.setCondition(1);
  held.setCondition(1);
  held.setCondition(99);
  EXPECT_EQ(handler.delivered, Numbers());
  held.setCondition(0);
  EXPECT_EQ(handler.delivered, (Numbers{1, 2}));
  EXPECT_EQ(living, 0);

  std::unique_ptr<ClientMessage> direct = std::make_unique<Numbered>(3);
  EXPECT_FALSE(held.delayMessage(direct));
  EXPECT_NE(direct, nullptr);
  held.resetCondition(7);
  EXPECT_TRUE(held.delayMessage(direct));
  EXPECT_EQ(direct, nullptr);
  held.setCondition(7);
  EXPECT_EQ(handler.delivered, (Numbers{1, 2, 3}));
}

TEST_F(ConditionedClientMessagesTest, WithoutConditionsHoldsNothing) {
  ConditionedClientMessages open(handler, 0);
  Numbered message(1);
  EXPECT_FALSE(open.delayMessage(&message));
  std::unique_ptr<ClientMessage> none;
  for (const bool isPending : {false, true}) {
    EXPECT_FALSE(open.delayMessage(nullptr) || open.delayMessage(none)) << "null is never held, pending " << isPending;
    open.resetCondition(1);
  }
  open.setCondition(1);
}

TEST_F(ConditionedClientMessagesTest, DestroysWhatIsStillHeldWithoutDeliveringIt) {
  {
    ConditionedClientMessages held(handler, 1);
    EXPECT_TRUE(held.delayMessage(new Numbered(1)));
  }
  EXPECT_EQ(living, 0);
  EXPECT_EQ(handler.delivered, Numbers());
}

TEST_F(ConditionedClientMessagesTest, AHandlerThatThrowsLosesNoMessage) {
  ConditionedClientMessages held(handler, 1);
  for (const int number : {1, 2, 3}) EXPECT_TRUE(held.delayMessage(new Numbered(number)));
  handler.onDelivery = [](int number) {
    if (number == 2) throw std::runtime_error("refused");
  };
  EXPECT_THROW(held.setCondition(0), std::runtime_error);
  EXPECT_EQ(living, 1);
  held.setCondition(0);
  EXPECT_EQ(handler.delivered, (Numbers{1, 2, 3}));
}

TEST_F(ConditionedClientMessagesTest, AHandlerMayCallBack) {
  ConditionedClientMessages held(handler, 1);
  EXPECT_TRUE(held.delayMessage(new Numbered(1)));
  EXPECT_TRUE(held.delayMessage(new Numbered(2)));
  handler.onDelivery = [&](int number) {
    if (number != 1) return;
    std::unique_ptr<ClientMessage> message = std::make_unique<Numbered>(3);
    EXPECT_FALSE(held.delayMessage(message)) << "nothing is pending during the delivery";
    held.resetCondition(5);
    EXPECT_TRUE(held.delayMessage(message));
    held.setCondition(5);
    EXPECT_EQ(handler.delivered, (Numbers{1})) << "the delivery under way goes on, in order";
  };
  held.setCondition(0);
  EXPECT_EQ(handler.delivered, (Numbers{1, 2, 3}));

  handler.onDelivery = [&](int number) {
    if (number != 4) return;
    held.resetCondition(6);
    EXPECT_TRUE(held.delayMessage(new Numbered(6))) << "condition 6 is pending";
  };
  held.resetCondition(0);
  for (const int number : {4, 5}) EXPECT_TRUE(held.delayMessage(new Numbered(number)));
  held.setCondition(0);
  EXPECT_EQ(handler.delivered, (Numbers{1, 2, 3, 4, 5})) << "what was held is delivered all the same";
  held.setCondition(6);
  EXPECT_EQ(handler.delivered, (Numbers{1, 2, 3, 4, 5, 6}));
}

TEST_F(ConditionedClientMessagesTest, ACopySharesTheMessagesAndEachIsDestroyedOnce) {
  ConditionedClientMessages held(handler, 1);
  EXPECT_TRUE(held.delayMessage(new Numbered(1)));
  ConditionedClientMessages copy(held);
  held.setCondition(0);
  EXPECT_EQ(living, 1);
  copy.setCondition(0);
  EXPECT_EQ(living, 0);
  EXPECT_EQ(handler.delivered, (Numbers{1, 1}));

  held.resetCondition(3);
  ConditionedClientMessages pending(held);
  EXPECT_TRUE(pending.delayMessage(new Numbered(2))) << "what is pending is copied, too";
  held.setCondition(3);
  EXPECT_EQ(handler.delivered.size(), 2u);
  pending.setCondition(3);
  EXPECT_EQ(handler.delivered, (Numbers{1, 1, 2}));
}

}  // namespace
}  // namespace Tessel
