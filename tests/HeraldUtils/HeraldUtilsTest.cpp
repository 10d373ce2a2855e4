#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/LockProbe.h>
#include <tests/support/ManualClock.h>
#include <tests/support/RecordingSink.h>

#include <limits>
#include <stdexcept>
#include <string>

namespace Tessel {
namespace {

template <class Update>
class Counter : public MVCObserver {
 public:
  Counter(MVCModel& observed, std::function<std::int64_t()> asking) : model(observed), ask(std::move(asking)) {
    model.addObserver(*this);
  }
  Counter(const Counter&) = delete;
  Counter& operator=(const Counter&) = delete;
  ~Counter() override { model.removeObserver(*this); }

  void update(const NotificationUpdateObject& update) override {
    static_cast<void>(dynamic_cast<const Update&>(update));
    ++count;
    answer = ask();
  }

  MVCModel& model;
  std::function<std::int64_t()> ask;
  int count = 0;
  std::int64_t answer = 0;  ///< What the model told within the last notification.
};

// One test, since the model is one for the process and synchronises once.
TEST(CurrentServerTimeModel, SynchronisesOnceAndAgainAfterTheTickCounterWrapped) {
  const WithManualClock manual;
  const auto time = [] {
    TsTime now;
    SystemTime().getTime(now);
    return now.getSeconds();
  };
  Counter<CurrentServerTimeUpdateObject> counter(*CurrentServerTimeModel::getInstance(), time);
  manual.clock->ticks = 5000;
  EXPECT_EQ(time(), 4) << "five seconds after a time of -1";
  for (const int negative : {-1, -2}) CurrentServerTimeModel::setCurrentServerTime(TsTime(negative));
  EXPECT_EQ(time(), 4) << "a negative time is not taken";
  constexpr std::int64_t FAR = 5'000'000'000;
  CurrentServerTimeModel::setCurrentServerTime(TsTime(FAR));
  EXPECT_EQ(counter.answer, FAR) << "the notification comes after the change";
  manual.clock->ticks = 6500;
  EXPECT_EQ(time(), FAR + 1) << "one and a half seconds later";
  CurrentServerTimeModel::setCurrentServerTime(TsTime(7777));
  EXPECT_EQ(time(), FAR + 1) << "a second synchronisation is ignored";
  EXPECT_EQ(counter.count, 4) << "every call notifies";

  manual.clock->ticks = 0;
  EXPECT_EQ(time(), FAR + ((std::int64_t{1} << 32) - 5000) / 1000) << "the counter has wrapped";
  CurrentServerTimeModel::setCurrentServerTime(TsTime(0));
  EXPECT_EQ(time(), 0) << "and the next time is taken";
  const LockProbe probe(*CurrentServerTimeModel::getInstance(), {time},
                        [] { CurrentServerTimeModel::setCurrentServerTime(TsTime(1)); });
}

TEST(UserAccountModel, KeepsTheBalancesByPriority) {
  UserAccountModel& accounts = UserAccountModel::getUserAccountModel();
  Counter<UserAccountUpdateObject> counter(
      accounts, [&] { return accounts.getAccount(1).getAmount() + accounts.getAccount(2).getAmount(); });
  accounts.newPriorityList({Money(100, 1), Money(200, 2), Money(300, 1)});
  EXPECT_EQ(std::pair(counter.count, counter.answer), std::pair(1, std::int64_t{300}));
  accounts.addToAccount(Money(5, 1));
  EXPECT_EQ(std::pair(counter.count, counter.answer), std::pair(2, std::int64_t{305}));
  accounts.setAccount(Money(50, 2));
  EXPECT_EQ(std::pair(counter.count, counter.answer), std::pair(3, std::int64_t{155}));
  accounts.addToAccount(Money(5, 9));
  accounts.setAccount(Money(5, 9));
  EXPECT_EQ(counter.count, 3) << "a unit without an account notifies nobody";

  EXPECT_EQ(accounts.getAccount(1), Money(105, 1)) << "the first of two entries counts";
  EXPECT_EQ(accounts.getAccount(9), Money(0, 9));
  Money balance(7, 7);
  EXPECT_FALSE(accounts.getAccountPrio(-1, balance));
  EXPECT_FALSE(accounts.getAccountPrio(3, balance));
  EXPECT_EQ(balance, Money(7, 7));
  EXPECT_TRUE(accounts.getAccountPrio(1, balance));
  EXPECT_EQ(balance, Money(50, 2));

  Money there;
  const Operations operations = {[&] { accounts.getAccount(1); }, [&] { accounts.getAccountPrio(0, there); },
                                 [&] { accounts.newPriorityList({}); }, [&] { accounts.addToAccount(Money(1, 1)); },
                                 [&] { accounts.setAccount(Money(1, 1)); }};
  const LockProbe probe(accounts, operations, [&] { accounts.setAccount(Money(50, 2)); });
}

TEST(NodeTimer, SaysHowFarOffItIs) {
  const WithManualClock manual;
  manual.clock->process = 10000;
  NodeTimer timer(4, 'a', 12500);
  EXPECT_EQ(timer.toDebugString(), L"[NodeTimer id=4, type=97 timestamp=12500 2 sec from now]");
  timer.setTimer(7500);
  EXPECT_EQ(timer.setType(static_cast<char>(0xFF)), -1);
  EXPECT_EQ(timer.toDebugString(), L"[NodeTimer id=4, type=-1 timestamp=7500 -2 sec from now]");

  using Stamp = std::numeric_limits<long>;
  using Milliseconds = std::numeric_limits<std::int64_t>;
  const auto expectSeconds = [&](long timeStamp, std::int64_t now, std::int64_t seconds) {
    manual.clock->process = now;
    timer.setTimer(timeStamp);
    EXPECT_TRUE(timer.toDebugString().ends_with(L" " + std::to_wstring(seconds) + L" sec from now]"));
  };
  expectSeconds(Stamp::max(), Milliseconds::min(), Milliseconds::max() / 1000);
  expectSeconds(Stamp::min(), Milliseconds::max(), Milliseconds::min() / 1000);
}

TEST(DateUtils, DaysOfAMonth) {
  const int rows[][3] = {{2004, 2, 29}, {1900, 2, 29},  {2003, 2, 28}, {-4, 2, 29},
                         {0, 1, 29},    {2003, 12, 31}, {2004, 4, 30}};
  for (const auto& [year, month, days] : rows) EXPECT_EQ(DateUtils::getNumberDaysInMonth(year, month), days);
  for (const int month : {0, 13}) {
    EXPECT_THROW(DateUtils::getMonthString(month), OutOfBoundsException);
    try {
      DateUtils::getNumberDaysInMonth(2003, month);
      ADD_FAILURE();
    } catch (const OutOfBoundsException& failure) {
      EXPECT_EQ(failure.getName(), L"monthNr");
      EXPECT_EQ(failure.getLowest(), 1);
      EXPECT_EQ(failure.getHighest(), 12);
      EXPECT_EQ(failure.getIndex(), month);
      EXPECT_EQ(failure.getFile(), L"HeraldUtils/DateUtils");
    }
  }
}

// One test, since the text for an invalid buy-in is looked up once in the life of the process.
TEST(ResourceTexts, ComeFromTheResourcesAndAreReportedWhenTheyAreMissing) {
  const WithRecordingSink recording;
  const auto reports = [&] { return recording.sink->reports.size(); };
  ResourceManager& resources = ResourceManager::getInstance();
  for (const auto& [month, text] :
       {std::pair(1, L"January"), {9, L"September"}, {10, L"October"}, {11, L"November"}, {12, L"December"}})
    EXPECT_EQ(DateUtils::getMonthString(month), text);
  EXPECT_EQ(DateUtils::getAMPMString(true) + DateUtils::getAMPMString(false), L"AMPM");
  resources.addTexts(L"BuyInTexts", {{L"BuyInFormatString", L"{BUYIN} and {FEE}"}});
  EXPECT_EQ(TournamentBuyIn(Money(1000, 7), Money(100, 7)).getStringRepresentation(), L"1000 and 100");
  EXPECT_EQ(reports(), 0u);

  for (const wchar_t* section : {L"BuyInTexts", L"MonthText"}) resources.removeSection(section);
  EXPECT_EQ(DateUtils::getMonthString(1), L"");
  EXPECT_EQ(TournamentBuyIn(Money(1000, 7), Money()).getStringRepresentation(), L"");
  {
    // Its sink may throw, and ask for the same text.
    class Asking : public StandardErrorSink {
     public:
      void report(const KVRException& exception) override {
        EXPECT_EQ(TournamentBuyIn().getStringRepresentation(), L"");
        recorder->report(exception);
        throw std::runtime_error("full");
      }
      std::shared_ptr<RecordingSink> recorder;
    };
    const auto asking = std::make_shared<Asking>();
    asking->recorder = recording.sink;
    BugReporter::getInstance().setSink(asking);
    EXPECT_THROW(TournamentBuyIn().getStringRepresentation(), std::runtime_error);
    EXPECT_EQ(TournamentBuyIn().getStringRepresentation(), L"");
    BugReporter::getInstance().setSink(recording.sink);
  }
  EXPECT_EQ(reports(), 3u);
  resources.restoreEnglish();
  EXPECT_EQ(TournamentBuyIn().getStringRepresentation(), L"");
  EXPECT_EQ(reports(), 3u) << "the missing text is not looked up again";
  EXPECT_EQ(recording.sink->reports[0].getFile(), L"HeraldUtils/DateUtils");
  EXPECT_EQ(recording.sink->reports[1].getFile(), L"HeraldUtils/TournamentBuyIn");
}

}  // namespace
}  // namespace Tessel
