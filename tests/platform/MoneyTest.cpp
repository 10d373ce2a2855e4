#include <gtest/gtest.h>
#include <herald/herald.h>

#include <limits>
#include <thread>

namespace Tessel {
namespace {

constexpr std::int64_t LOWEST = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t HIGHEST = std::numeric_limits<std::int64_t>::max();

const MonetaryType PLAY{L"P", L"Play", 3, 2};
const MonetaryType REAL{L"R", L"Real", 4, 1};
const Currency DOLLAR{L"USD", L"$", L"", 100, 1};
const Currency EURO{L"EUR", L"", L" €", 100, 2};

class MoneyTest : public testing::Test {
 public:
  MoneyTest() {
    model.replaceAll({{0, L"P", L"chips"}, {1, L"R", L"USD"}, {2, L"?", L"EUR"}, {1, L"P", L"EUR"}}, {PLAY, REAL},
                     {DOLLAR, EURO});
  }
  ~MoneyTest() override { model.replaceAll({}, {}, {}); }

  MoneyModel& model = MoneyModel::getInstance();
};

TEST_F(MoneyTest, LooksUpTheCurrencyAndTheTypeOfAUnit) {
  const struct {
    int unit;
    const Currency* currency;
    const MonetaryType* type;
  } cases[] = {{-1, nullptr, nullptr}, {0, nullptr, &PLAY}, {1, &DOLLAR, &REAL}, {2, &EURO, nullptr}};
  for (const auto& [unit, expectedCurrency, expectedType] : cases) {
    SCOPED_TRACE(unit);
    Currency currency;
    EXPECT_EQ(model.getCurrency(unit, currency), expectedCurrency != nullptr);
    EXPECT_EQ(currency, expectedCurrency ? *expectedCurrency : Currency());
    MonetaryType type;
    EXPECT_EQ(model.getMonetaryType(unit, type), expectedType != nullptr);
    EXPECT_EQ(type, expectedType ? *expectedType : MonetaryType());
  }
  model.replaceAll({}, {}, {});
  Currency currency;
  EXPECT_FALSE(model.getCurrency(1, currency));
}

TEST_F(MoneyTest, ATypeTellsItsProperties) {
  EXPECT_TRUE(PLAY.isFree() && PLAY.isRefillable() && !PLAY.isReal());
  EXPECT_TRUE(!REAL.isFree() && !REAL.isRefillable() && REAL.isReal());
  EXPECT_FALSE(MonetaryType().isReal());
}

TEST_F(MoneyTest, PrintsInTheCurrencyOfItsUnit) {
  EXPECT_EQ(Money(1500, 1).toString(), L"$1500");
  EXPECT_EQ(Money(LOWEST, 2).toString(), L"-9223372036854775808 €");
  EXPECT_EQ(Money(5, 0).toString(), L"5");
  EXPECT_EQ(Money().toString(), L"0");
  EXPECT_EQ(MoneyLimit(1, 2, 1, DOLLAR).toString(), L"$1/$2");
  EXPECT_EQ(MoneyLimit().toString(), L"0/0");
}

TEST_F(MoneyTest, OnlyAUnitFromZeroOnIsValid) {
  EXPECT_TRUE(Money(0, 0).hasValidMonetaryUnit());
  EXPECT_FALSE(Money(1, -1).hasValidMonetaryUnit());
  EXPECT_FALSE(Money().hasValidMonetaryUnit());
}

TEST_F(MoneyTest, AddsWithinOneUnitAndWithin64Bits) {
  const std::int64_t cases[][3] = {{1, 2, 3},
                                   {1, -2, -1},
                                   {HIGHEST, 1, HIGHEST},
                                   {LOWEST, -1, LOWEST},
                                   {HIGHEST, LOWEST, -1},
                                   {HIGHEST, HIGHEST, HIGHEST}};
  for (const auto& [a, b, sum] : cases) {
    Money money(a, 1);
    money += Money(b, 1);
    EXPECT_EQ(money, Money(sum, 1));
  }
  Money money(1, 1);
  EXPECT_THROW(money += Money(1, 2), KeystoneException);
  EXPECT_EQ(money, Money(1, 1));
}

TEST_F(MoneyTest, AReaderSeesOneContentOrTheOther) {
  const std::vector<Currency> contents[] = {{{L"1", L"$", L"$"}}, {{L"2", L"€", L"€"}}};
  const auto put = [&](int i) { model.replaceAll({{1, L"R", contents[i % 2][0].id}}, {}, contents[i % 2]); };
  put(0);
  const std::jthread writer([&](const std::stop_token& stop) {
    for (int i = 1; !stop.stop_requested(); ++i) put(i);
  });
  for (int i = 0; i < 2000; ++i) {
    Currency currency;
    ASSERT_TRUE(model.getCurrency(1, currency));
    ASSERT_EQ(currency.prefix, currency.postfix);
  }
}

}  // namespace
}  // namespace Tessel
