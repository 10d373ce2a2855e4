#include <gtest/gtest.h>
#include <herald/platform/lexicon/ResourceManager.h>

#include <thread>

namespace Tessel {
namespace {

class LexiconTest : public testing::Test {
 public:
  ~LexiconTest() override { manager.restoreEnglish(); }

  std::wstring text(const std::wstring& section, const std::wstring& key) const {
    std::wstring out = L"unchanged";
    const bool found = manager.getText(ResourceManager::TEXT_CATEGORY, section, key, out);
    EXPECT_EQ(found, out != L"unchanged");
    return out;
  }

  ResourceManager& manager = ResourceManager::getInstance();
};

TEST_F(LexiconTest, EveryKeyHasAText) {
  std::vector<std::pair<std::wstring, std::wstring>> keys = {{L"AMPMText", L"AM"},
                                                             {L"AMPMText", L"PM"},
                                                             {L"BuyInTexts", L"BuyInFormatString"},
                                                             {L"BuyInTexts", L"InvalidBuyInString"}};
  for (int month = 1; month <= 12; ++month) keys.emplace_back(L"MonthText", L"Month" + std::to_wstring(month));
  for (const auto& [section, key] : keys) EXPECT_NE(text(section, key), L"unchanged") << testing::PrintToString(key);
  EXPECT_EQ(text(L"MonthText", L"Month13"), L"unchanged");
  EXPECT_EQ(text(L"NoSuchText", L"AM"), L"unchanged");
}

TEST_F(LexiconTest, OnlyTheTextCategoryAndVariantZeroExist) {
  std::wstring out;
  EXPECT_FALSE(manager.getText(6, L"AMPMText", L"AM", out));
  EXPECT_EQ(manager.getTextResource(6, L"AMPMText", 0), nullptr);
  EXPECT_EQ(manager.getTextResource(7, L"AMPMText", 1), nullptr);
  const std::unique_ptr<TextResource> resource(manager.getTextResource(7, L"AMPMText", 0));
  ASSERT_NE(resource, nullptr);
  EXPECT_TRUE(resource->getText(L"PM", out));
  EXPECT_EQ(out, L"PM");
}

TEST_F(LexiconTest, AttributesAreReplacedOnce) {
  const std::pair<std::wstring, std::wstring> cases[] = {{L"{BUYIN} + {FEE}", L"$1{FEE} + $2"},
                                                         {L"{FEE}{FEE}", L"$2$2"},
                                                         {L"{BUYIN", L"{BUYIN"},
                                                         {L"{{FEE}} {OTHER} BUYIN", L"{$2} {OTHER} BUYIN"},
                                                         {L"none", L"none"},
                                                         {L"", L""}};
  for (const auto& [format, expected] : cases) {
    manager.addTexts(L"Mine", {{L"Format", format}});
    std::wstring out = L"unchanged";
    EXPECT_TRUE(
        manager.getTextResource(L"Mine")->getStringSubstAttribute(L"Format", L"BUYIN", L"$1{FEE}", L"FEE", L"$2", out));
    EXPECT_EQ(out, expected);
  }
  std::wstring out = L"unchanged";
  EXPECT_FALSE(manager.getTextResource(L"Mine")->getStringSubstAttribute(L"Absent", L"", L"", L"", L"", out));
  EXPECT_EQ(out, L"unchanged");
}

TEST_F(LexiconTest, AnApplicationAddsReplacesAndRemovesTexts) {
  const std::unique_ptr<TextResource> before = manager.getTextResource(L"AMPMText");
  manager.addTexts(L"AMPMText", {{L"AM", L"vormittags"}, {L"NOON", L"mittags"}});
  EXPECT_EQ(text(L"AMPMText", L"AM"), L"vormittags");
  EXPECT_EQ(text(L"AMPMText", L"NOON"), L"mittags");
  EXPECT_EQ(text(L"AMPMText", L"PM"), L"PM");
  std::wstring out;
  EXPECT_TRUE(before->getText(L"AM", out));
  EXPECT_EQ(out, L"AM") << "a section that was looked up before does not change";

  manager.removeSection(L"AMPMText");
  EXPECT_EQ(manager.getTextResource(L"AMPMText"), nullptr);
  manager.restoreEnglish();
  EXPECT_EQ(text(L"AMPMText", L"AM"), L"AM");
  EXPECT_EQ(text(L"AMPMText", L"NOON"), L"unchanged");
}

TEST_F(LexiconTest, TextsCanBeLoadedWhileAnotherThreadReads) {
  const std::jthread loader([this](const std::stop_token& stop) {
    for (int i = 0; !stop.stop_requested(); ++i) manager.addTexts(L"AMPMText", {{L"AM", std::to_wstring(i)}});
  });
  for (int i = 0; i < 2000; ++i) EXPECT_EQ(text(L"AMPMText", L"PM"), L"PM");
}

}  // namespace
}  // namespace Tessel
