#pragma once
#include <map>
#include <string>
#include <string_view>

namespace Tessel {

/// What the headers of the messages say of their classes.
class HeaderComments {
 public:
  struct OfClass {
    /// What the class belongs to, by the header or folder that it stands in.
    std::string area{};
    std::string text{};
  };

  HeaderComments();

  /// Null when no header has a class of that name.
  const OfClass* find(std::string_view className) const;
  /// Empty when its headers say nothing.
  std::string_view aboutArea(std::string_view area) const;

 private:
  class Reader;

  std::map<std::string, OfClass, std::less<>> classes_;
  std::map<std::string, std::string, std::less<>> areas_;
};

/// "#header", then its comments and the first lines of its declarations; for every header. Generated.
extern const char* const COMMENTS_OF_HEADERS;

}  // namespace Tessel
