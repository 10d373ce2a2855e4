#include <herald/platform/lexicon/TextResource.h>

#include <string_view>
#include <utility>

namespace Tessel {

TextResource::TextResource(std::shared_ptr<const Texts> texts) : texts_(std::move(texts)) {}

bool TextResource::getText(const std::wstring& key, std::wstring& out) const {
  const auto text = texts_->find(key);
  if (text == texts_->end()) return false;
  out = text->second;
  return true;
}

bool TextResource::getStringSubstAttribute(const std::wstring& key, const std::wstring& attribute1,
                                           const std::wstring& value1, const std::wstring& attribute2,
                                           const std::wstring& value2, std::wstring& out) const {
  const auto found = texts_->find(key);
  if (found == texts_->end()) return false;

  const std::pair<std::wstring, std::wstring_view> substitutions[] = {
      {L"{" + attribute1 + L"}", value1},
      {L"{" + attribute2 + L"}", value2},
  };
  std::wstring result;
  for (std::wstring_view rest = found->second; !rest.empty();) {
    std::wstring_view piece = rest.substr(0, 1);
    std::size_t taken = 1;
    for (const auto& [marker, value] : substitutions) {
      if (!rest.starts_with(marker)) continue;
      piece = value;
      taken = marker.size();
      break;
    }
    result += piece;
    rest.remove_prefix(taken);
  }
  out = std::move(result);
  return true;
}

}  // namespace Tessel
