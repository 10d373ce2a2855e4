#include <gtest/gtest.h>
#include <herald/herald.h>

#include <algorithm>
#include <fstream>
#include <map>
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

// The elements of a tagged list are records that no field names: the layout has to tell each of them.
TEST(CatalogueTest, HoldsEveryMessageAndEveryElementOfATaggedList) {
  const std::vector<std::string> lines = printedLines();
  const std::set<std::string> titles(lines.begin(), lines.end());
  const auto expectTitle = [&](const std::string& title) { EXPECT_TRUE(titles.contains(title)) << title; };
  for (const ClientMessageRow& row : clientMessageTable())
    expectTitle(std::to_string(row.id) + " " + (row.create ? std::string(row.name) : "(creates no message)"));
  for (const ServerMessageRow& row : serverMessageTable())
    expectTitle(std::to_string(row.id) + " " + std::string(row.name));

  std::map<std::string, std::string> elements;
  for (auto line = std::find(lines.begin(), lines.end(), "TYPE STRINGS"); line != lines.end(); ++line) {
    std::istringstream words(*line);
    std::string record;
    std::string typeString;
    if (words >> record >> typeString && line->starts_with("  ")) elements[typeString] = record;
  }
  for (const auto typeString :
       {InfoVector::CreditInfotypeString, InfoVector::PokerGameInfoTypeString, InfoVector::PGSettingsInfoTypeString,
        InfoVector::TournamentLobbyPlayerInfoTypeString, InfoVector::TournamentLobbyTableInfoTypeString,
        InfoVector::VIPPlayerInfoTypeString, InfoVector::TreeNodeInfoTypeString})
    expectTitle(elements.at(UTFEncoder::toUTF8(typeString)));
  EXPECT_EQ(elements.size(), 7u);
}

// Names come from the enumerations themselves.
TEST(SchemaTest, NamesTheValuesOfEnumerations) {
  const auto namesIn = [](std::string_view record, std::string_view field) {
    const auto& fields = Schema::ofProtocol().find(record)->fields;
    std::string names;
    for (const auto& [value, name] : std::ranges::find(fields, field, &FieldSchema::name)->valueNames)
      names += std::to_string(value) + name + ' ';
    return names;
  };
  EXPECT_EQ(namesIn("WinPotInfo", "potType"), "-1UNKNOWN 0MAIN_POT 1SIDE_POT 2HIGH_POT 3LOW_POT 4UNCALLED_BET ");
  EXPECT_EQ(namesIn("SitDownReplyInfo", "status"),
            "0SAT_DOWN 6FIRST_REFUSED_DUE_TO_MONEY 8LAST_REFUSED_DUE_TO_MONEY 12REFUSED_DUE_TO_SYSTEM ");
  EXPECT_TRUE(namesIn("CardInfo", "number").ends_with("12QUEEN 13KING "));
  EXPECT_EQ(namesIn("CardInfo", "seat"), "");
  const FieldList card(CardInfo(1, 2, Card(Card::Color::SPADES, Card::Type::ACE)));
  EXPECT_EQ(card[2].valueName + ' ' + card[3].valueName, "SPADES ACE");
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
