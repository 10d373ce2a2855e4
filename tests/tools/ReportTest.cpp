#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <regex>
#include <sstream>

#include "RunCommand.h"

namespace Tessel {
namespace {

// What the page shows of the packets, scripts/pages looks at.

const std::string DAMAGED = capture({BET_DONE, SIT_IN}) + record(SIT_IN.substr(0, 3), SIT_IN.size());

bool exists(const std::string& file) { return std::ifstream(file).good(); }

TEST(ReportTest, WritesThePageThatIsAskedFor) {
  const std::string page = temporary("page");
  std::remove(page.c_str());
  const struct {
    std::string arguments;
    std::string file;
    int status;
    bool isWritten;
  } cases[] = {
      {"FILE -o " + page, capture({BET_DONE, SIT_IN}), 0, true},
      {"- --output " + page, capture({}), 0, true},
      {"FILE -o " + page, DAMAGED, 1, true},
      {"FILE -o " + page, "no capture", 1, false},
      {"FILE -o /dev/full", capture({BET_DONE}), 1, false},
      {"FILE -o " + page + "/below", capture({BET_DONE}), 1, false},
      {"FILE", capture({BET_DONE}), 2, false},
      {"FILE FILE -o " + page, capture({BET_DONE}), 2, false},
      {"FILE --where nothing -o " + page, capture({BET_DONE}), 2, false},
  };
  for (const auto& [arguments, file, status, isWritten] : cases) {
    SCOPED_TRACE(arguments);
    const Outcome outcome = run("report " + arguments, file);
    EXPECT_EQ(outcome.status, status) << outcome.err;
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(exists(page), isWritten);
    std::remove(page.c_str());
  }
}

TEST(ReportTest, ThePageNeedsNothingBesideIt) {
  const std::string page = run("report FILE -o -", capture({BET_DONE, SIT_IN})).out;
  EXPECT_TRUE(page.starts_with("<!doctype html>") && page.ends_with("</html>\n")) << page.size();
  const std::regex loading(R"(https?://|\bsrc=|@import|url\(|<link|<iframe|innerHTML|insertAdjacentHTML|\beval\()");
  std::istringstream lines(page);
  for (std::string line; std::getline(lines, line);) EXPECT_FALSE(std::regex_search(line, loading)) << line;
}

// All that the page holds of a capture as text, but for names of the protocol.
TEST(ReportTest, TheNameOfTheCaptureEndsNoScript) {
  const std::string name = temporary("<script>'\"\xE2\x80\xA8\xE2\x80\xAE");
  std::ofstream(name, std::ios::binary) << capture({BET_DONE});
  const Outcome outcome = run("report \"" + std::regex_replace(name, std::regex("\""), "\\\"") + "\" -o -");
  std::remove(name.c_str());
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_NE(outcome.out.find("\\u003cscript>'\\\"\\u2028\\u202e"), std::string::npos);
}

TEST(ReportTest, HoldsWhatTheFilterLetsThrough) {
  const std::string file = capture({BET_DONE, SIT_IN, BET_DONE, SIT_IN});
  const struct {
    const char* options;
    const char* packets;
  } cases[] = {{"", "4"},
               {"--class ClientBetDone --packets 2-", "1"},
               {"--direction toServer", "2"},
               {"--where 'body.seat == 4'", "0"}};
  for (const auto& [options, packets] : cases) {
    const std::string page = run("report "s + options + " FILE -o -", file).out;
    EXPECT_NE(page.find("\"packets\":"s + packets + ','), std::string::npos) << options;
  }
}

}  // namespace
}  // namespace Tessel
