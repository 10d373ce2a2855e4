#include "Schemas.h"

#include <map>

namespace Tessel {

namespace {

const std::map<std::string, std::string (*)(const Schema&)> PRINTERS{
    {"json", jsonSchema},
    {"kaitai", kaitaiSchema},
    {"wireshark", wiresharkSchema},
};

const std::string PAGE = "page";

}  // namespace

std::vector<std::string> schemaLanguages() {
  std::vector<std::string> languages;
  languages.reserve(PRINTERS.size() + 1);
  for (const auto& [language, print] : PRINTERS) languages.push_back(language);
  languages.push_back(PAGE);
  return languages;
}

std::string printSchema(const std::string& language, const std::vector<std::string>& captures) {
  const Schema& schema = Schema::ofProtocol();
  return language == PAGE ? protocolPage(schema, captures) : PRINTERS.at(language)(schema);
}

}  // namespace Tessel
