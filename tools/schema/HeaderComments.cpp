#include "HeaderComments.h"

#include <cctype>
#include <sstream>

namespace Tessel {

namespace {

// "TournamentLobbyEvents" as "Tournament lobby".
std::string titleOf(std::string name) {
  for (const std::string_view suffix : {"Events", "Requests"}) {
    if (name.ends_with(suffix)) name.resize(name.size() - suffix.size());
  }
  std::string title;
  for (const char c : name) {
    const bool beginsWord = !title.empty() && std::isupper(static_cast<unsigned char>(c)) != 0;
    if (beginsWord) title += ' ';
    title += beginsWord ? static_cast<char>(std::tolower(static_cast<unsigned char>(c))) : c;
  }
  return title;
}

std::string areaOf(const std::string& header) {
  const std::size_t folder = header.find('/');
  return titleOf(header.substr(0, folder != std::string::npos ? folder : header.rfind('.')));
}

void append(std::string& text, std::string_view more) {
  if (!text.empty()) text += ' ';
  text += more;
}

}  // namespace

// Reads line by line.
class HeaderComments::Reader {
 public:
  explicit Reader(HeaderComments& comments) : comments_(comments) {}

  void read(const std::string& line) {
    if (line.starts_with('#')) {
      beginHeader(line.substr(1));
    } else if (line.starts_with("/// ")) {
      addToNext(line.substr(4));
    } else if (line.starts_with("// ")) {
      append(comments_.areas_[area_], line.substr(3));
    } else if (!line.starts_with("template")) {
      addDeclaration(line);
    }
  }

 private:
  void beginHeader(const std::string& header) {
    area_ = areaOf(header);
    ofNext_.clear();
  }

  // Code is indented.
  void addToNext(const std::string& comment) {
    const std::size_t indent = comment.find_first_not_of(' ');
    append(ofNext_, indent == 0 ? comment : '`' + comment.substr(indent) + '`');
  }

  void addDeclaration(const std::string& line) {
    std::istringstream words(line);
    std::string keyword;
    std::string name;
    words >> keyword >> name;
    if (name.starts_with("HERALD_")) words >> name;
    const bool isClass = (keyword == "class" || keyword == "struct") && !line.ends_with(';');
    if (isClass) comments_.classes_.try_emplace(name, OfClass{area_, ofNext_});
    ofNext_.clear();
  }

  HeaderComments& comments_;
  std::string area_;
  std::string ofNext_;
};

HeaderComments::HeaderComments() {
  Reader reader(*this);
  std::istringstream lines(COMMENTS_OF_HEADERS);
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty()) reader.read(line);
  }
}

const HeaderComments::OfClass* HeaderComments::find(std::string_view className) const {
  const auto found = classes_.find(className);
  return found != classes_.end() ? &found->second : nullptr;
}

std::string_view HeaderComments::aboutArea(std::string_view area) const {
  const auto found = areas_.find(area);
  return found != areas_.end() ? std::string_view(found->second) : std::string_view();
}

}  // namespace Tessel
