#include <gtest/gtest.h>
#include <herald/platform/keystone/MVCModel.h>
#include <tests/support/RecordingSink.h>

#include <atomic>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

namespace Tessel {
namespace {

class NumberModel : public MVCModel {
 public:
  void set(int number) {
    {
      const std::lock_guard guard(getLock());
      number_ = number;
    }
    notifyObservers(NotificationUpdateObject(*this));
  }
  int get() const {
    const std::lock_guard guard(getLock());
    return number_;
  }

 private:
  int number_ = 0;
};

class Observer : public MVCObserver {
 public:
  explicit Observer(std::function<void()> action) : action_(std::move(action)) {}
  void update(const NotificationUpdateObject&) override { action_(); }

 private:
  std::function<void()> action_;
};

// Three observers; the middle one does something to the model or its observers. Each call leaves the observer's name.
class MVCModelTest : public testing::Test {
 public:
  MVCModelTest() {
    for (Observer* observer : {&a, &b, &c}) model.addObserver(*observer);
  }

  std::string callsOf(int number) {
    calls.clear();
    model.set(number);
    return calls;
  }

  NumberModel model;
  std::string calls;
  std::function<void()> doing = [] {};
  Observer a{[this] { calls += 'a'; }};
  Observer b{[this] { calls += 'b', doing(); }};
  Observer c{[this] { calls += 'c'; }};
  Observer d{[this] { calls += 'd'; }};
};

TEST_F(MVCModelTest, CallsEachObserverOnceInTheOrderOfAdding) {
  model.addObserver(a);
  EXPECT_EQ(callsOf(1), "abc");
  model.removeObserver(d);
  model.removeObserver(b);
  EXPECT_EQ(callsOf(2), "ac");
}

TEST_F(MVCModelTest, ObserversMayChangeTheListWithinANotification) {
  const struct {
    const char* name;
    std::function<void()> doing;
    std::string running;
    std::string next;
  } cases[] = {
      {"removes itself", [this] { model.removeObserver(b); }, "abc", "ac"},
      {"removes one called before", [this] { model.removeObserver(a); }, "abc", "bc"},
      {"removes one not called yet", [this] { model.removeObserver(c); }, "ab", "ab"},
      {"adds", [this] { model.addObserver(d); }, "abc", "abcd"},
      {"adds and removes", [this] { model.addObserver(d), model.removeObserver(d); }, "abc", "abc"},
      {"moves itself to the end", [this] { model.removeObserver(b), model.addObserver(b); }, "abc", "acb"},
  };
  for (const auto& aCase : cases) {
    SCOPED_TRACE(aCase.name);
    doing = [&, done = false]() mutable {
      if (!std::exchange(done, true)) aCase.doing();
    };
    EXPECT_EQ(callsOf(1), aCase.running);
    EXPECT_EQ(callsOf(2), aCase.next);
    for (Observer* observer : {&a, &b, &c, &d}) model.removeObserver(*observer);
    for (Observer* observer : {&a, &b, &c}) model.addObserver(*observer);
  }
}

TEST_F(MVCModelTest, AChangeWithinANotificationNotifiesAtOnce) {
  doing = [this] {
    if (model.get() == 2) return;
    model.removeObserver(a);
    model.set(2);
  };
  EXPECT_EQ(callsOf(1), "abbcc");
  EXPECT_EQ(model.get(), 2);
  EXPECT_EQ(callsOf(2), "bc");
}

TEST_F(MVCModelTest, AnExceptionIsReportedAndStopsNobody) {
  const struct {
    std::function<void()> doing;
    std::wstring text;
  } cases[] = {
      {[] { throw ObjectNotFoundException(L"view", 1, L"no table"); }, L"no table"},
      {[] { throw std::runtime_error("no memory"); }, L"no memory"},
      {[] { throw 1; }, L"An exception of an unknown class."},
  };
  for (const auto& aCase : cases) {
    const WithRecordingSink recording;
    doing = aCase.doing;
    EXPECT_EQ(callsOf(1), "abc");
    ASSERT_EQ(recording.sink->reports.size(), 1u);
    EXPECT_EQ(recording.sink->reports[0].getText(), aCase.text);
  }
}

TEST(NotificationUpdateObject, ACloneNamesTheSameModel) {
  const NumberModel model;
  const std::unique_ptr<NotificationUpdateObject> copy(NotificationUpdateObject(model).clone());
  EXPECT_EQ(&copy->getModel(), &model);
}

// Changes the model until it is destroyed.
std::jthread changing(NumberModel& model) {
  return std::jthread([&model](const std::stop_token& stop) {
    for (int i = 0; !stop.stop_requested(); ++i) model.set(i);
  });
}

TEST(MVCModelThreads, ARemovedObserverIsNotCalledAndNotBeingCalled) {
  constexpr int ROUNDS = 300;
  NumberModel model;
  const std::jthread changer = changing(model);
  std::atomic<bool> inside = false;
  for (int round = 0; round < ROUNDS; ++round) {
    std::atomic<int> calls = 0;
    auto observer = std::make_unique<Observer>([&] {
      inside = true;
      ++calls;
      std::this_thread::yield();
      inside = false;
    });
    model.addObserver(*observer);
    while (calls == 0) std::this_thread::yield();
    model.removeObserver(*observer);
    ASSERT_FALSE(inside);
    observer.reset();
  }
}

TEST(MVCModelThreads, OneThreadRemovesWhatRemovesItselfOnAnother) {
  constexpr int ROUNDS = 300;
  NumberModel model;
  const std::jthread changer = changing(model);
  for (int round = 0; round < ROUNDS; ++round) {
    std::atomic<int> calls = 0;
    Observer* self = nullptr;
    Observer observer([&] {
      model.removeObserver(*self);
      ++calls;
    });
    self = &observer;
    model.addObserver(observer);
    while (round % 2 == 0 && calls == 0) std::this_thread::yield();
    model.removeObserver(observer);
    ASSERT_LE(calls, 1);
  }
}

}  // namespace
}  // namespace Tessel
