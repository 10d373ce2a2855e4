#include <tests/support/Golden.h>
#include <tests/support/Notation.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace Tessel {

namespace {

void append(std::optional<std::string>& text, const std::string& line) {
  text = text && !text->empty() ? *text + ' ' + line : line;
}

void append(std::vector<std::uint8_t>& bytes, std::string_view notation) {
  const auto more = toBytes(notation);
  bytes.insert(bytes.end(), more.begin(), more.end());
}

GoldenCase begin(std::string where, std::istringstream& words) {
  GoldenCase golden{.where = std::move(where)};
  words >> golden.name;
  if (int id = 0; words >> id) golden.id = id;
  return golden;
}

void addLine(GoldenCase& golden, const std::string& key, const std::string& rest) {
  if (key == "bytes")
    append(golden.bytes, rest);
  else if (key == "values")
    append(golden.values, rest);
  else if (key == "text")
    golden.text = unescape(rest);
  else if (key == "told")
    golden.told = rest;
  else if (key == "result" && rest == "false")
    golden.result = false;
  else if (key == "throws")
    golden.throws = rest;
  else if (key == "again")
    append(golden.again ? *golden.again : golden.again.emplace(), rest);
  else if (key == "left")
    golden.left = std::stoul(rest);
  else if (key == "reports")
    golden.reports = std::stoul(rest);
  else
    throw std::runtime_error(golden.where + ": " + key);
}

// Only what went wrong may leave its values open.
std::vector<GoldenCase> checked(std::vector<GoldenCase> cases) {
  for (const GoldenCase& golden : cases) {
    if (!golden.values && golden.result && !golden.throws && golden.reports == 0)
      throw std::runtime_error(golden.where + ": no values");
  }
  return cases;
}

void readFile(const std::string& name, std::vector<GoldenCase>& cases) {
  std::ifstream file(HERALD_SOURCE_DIR "/tests/messages/golden/" + name, std::ios::binary);
  if (!file) throw std::runtime_error(name);
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line.front() == '#') continue;
    std::istringstream words(line);
    std::string key;
    words >> key >> std::ws;
    if (key == "message" || key == "record" || key == "request") {
      cases.push_back(begin(name + ':' + std::to_string(number), words));
      continue;
    }
    std::string rest;
    // A text begins in the eighth column, so that it may begin with a blank.
    if (key == "text")
      rest = line.size() > 7 ? line.substr(7) : "";
    else
      std::getline(words, rest);
    addLine(cases.at(cases.size() - 1), key, rest);
  }
}

std::vector<GoldenCase> readFiles(std::initializer_list<const char*> names) {
  std::vector<GoldenCase> cases;
  for (const char* name : names) readFile(name, cases);
  return cases;
}

}  // namespace

const std::vector<GoldenCase>& goldenCases() {
  static const auto cases = checked(readFiles({"records.golden", "table.golden", "lobby.golden", "tournament.golden"}));
  return cases;
}

const std::vector<GoldenCase>& requestCases() {
  static const auto cases = readFiles({"requests.golden"});
  return cases;
}

const GoldenCase& goldenCase(std::string_view name) {
  const auto found = std::ranges::find(goldenCases(), name, &GoldenCase::name);
  if (found == goldenCases().end()) throw std::out_of_range(std::string(name));
  return *found;
}

}  // namespace Tessel
