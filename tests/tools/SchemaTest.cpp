#include <gtest/gtest.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/ServerMessageTable.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>

namespace Tessel {
namespace {

// What `herald schema` prints.
std::string schema(const std::string& arguments) {
  std::FILE* output = popen((HERALD_COMMAND " schema " + arguments).c_str(), "r");
  std::string text;
  std::array<char, 65536> buffer{};
  for (std::size_t size = 1; size > 0;) {
    size = std::fread(buffer.data(), 1, buffer.size(), output);
    text.append(buffer.data(), size);
  }
  EXPECT_EQ(WEXITSTATUS(pclose(output)), 0);
  return text;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// A difference is a change of the protocol or of its samples. When it is meant:
// herald schema page samples/*.pcap > docs/protocol.html
TEST(SchemaTest, ThePageIsTheOneThatIsCheckedIn) {
  std::ostringstream file;
  file << std::ifstream(HERALD_SOURCE_DIR "/docs/protocol.html").rdbuf();
  const std::vector<std::string> checkedIn = linesOf(file.str());
  const std::vector<std::string> printed = linesOf(schema("page " HERALD_SAMPLES_DIR "/*.pcap"));
  ASSERT_FALSE(checkedIn.empty());
  for (std::size_t i = 0; i < std::min(checkedIn.size(), printed.size()); ++i)
    ASSERT_EQ(checkedIn[i], printed[i]) << "line " << i + 1;
  EXPECT_EQ(checkedIn.size(), printed.size());
}

// A page that is sent around must not fetch anything.
TEST(SchemaTest, ThePageNeedsNothingBesideIt) {
  const std::regex loading(R"(https?://|\bsrc=|@import|url\(|<link|<iframe)");
  for (const std::string& line : linesOf(schema("page"))) EXPECT_FALSE(std::regex_search(line, loading)) << line;
}

template <class Row>
void expectIds(std::span<const Row> rows, const std::string& direction, const nlohmann::json& rules) {
  for (const Row& row : rows) {
    if (!row.create) continue;
    const auto isOfClass = [&](const nlohmann::json& rule) {
      return rule.contains("if") && rule["if"]["properties"]["class"] == nlohmann::json{{"const", row.name}};
    };
    const auto rule = std::ranges::find_if(rules, isOfClass);
    ASSERT_NE(rule, rules.end()) << row.name;
    const nlohmann::json& properties = rule->at("then").at("properties");
    EXPECT_EQ(properties.at("direction").at("const"), direction) << row.name;
    const nlohmann::json& ids = properties.at("id").at("enum");
    EXPECT_NE(std::ranges::find(ids, nlohmann::json(row.id)), ids.end()) << row.name;
  }
}

TEST(SchemaTest, TheJsonSchemaKnowsEveryId) {
  const auto rules = nlohmann::json::parse(schema("json")).at("allOf");
  expectIds(clientMessageTable(), "fromServer", rules);
  expectIds(serverMessageTable(), "toServer", rules);
}

}  // namespace
}  // namespace Tessel
