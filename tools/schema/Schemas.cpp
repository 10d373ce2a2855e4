#include "Schemas.h"

#include <map>

namespace Tessel {

namespace {

const std::map<std::string, std::string (*)(const Schema&)> PRINTERS{
    {"json", jsonSchema},
    {"kaitai", kaitaiSchema},
    {"wireshark", wiresharkSchema},
};

}  // namespace

std::vector<std::string> schemaLanguages() {
  std::vector<std::string> languages;
  for (const auto& [language, print] : PRINTERS) languages.push_back(language);
  return languages;
}

std::string printSchema(const std::string& language) { return PRINTERS.at(language)(Schema::ofProtocol()); }

}  // namespace Tessel
