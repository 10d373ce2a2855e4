#include <gtest/gtest.h>
#include <herald/inspect/Catalogue.h>

#include <fstream>
#include <set>
#include <sstream>

namespace Tessel {
namespace {

std::vector<std::string> linesOf(std::istream& text) {
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);) lines.push_back(line);
  return lines;
}

std::vector<std::string> printedLines() {
  std::istringstream text(protocolCatalogue());
  return linesOf(text);
}

// A difference is a change of the protocol. When it is meant: herald catalogue > docs/catalogue.txt
TEST(CatalogueTest, IsTheOneThatIsCheckedIn) {
  std::ifstream file(HERALD_SOURCE_DIR "/docs/catalogue.txt");
  ASSERT_TRUE(file);
  const std::vector<std::string> checkedIn = linesOf(file);
  const std::vector<std::string> printed = printedLines();
  for (std::size_t i = 0; i < std::min(checkedIn.size(), printed.size()); ++i)
    ASSERT_EQ(checkedIn[i], printed[i]) << "line " << i + 1;
  EXPECT_EQ(checkedIn.size(), printed.size());
}

// JSON would lose one of two fields of the same name.
TEST(CatalogueTest, NoFieldNameStandsTwiceInARecord) {
  std::string section;
  std::set<std::string> names;
  for (const std::string& line : printedLines()) {
    if (!line.starts_with("  ")) {
      section = line;
      names.clear();
      continue;
    }
    const std::string name = line.substr(2, line.find(' ', 2) - 2);
    EXPECT_TRUE(name.empty() || (name != "class" && names.insert(name).second)) << name << " in " << section;
  }
}

}  // namespace
}  // namespace Tessel
