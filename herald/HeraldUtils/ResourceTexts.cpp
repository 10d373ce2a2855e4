#include <herald/HeraldUtils/ResourceTexts.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/lexicon/ResourceManager.h>

namespace Tessel {

std::unique_ptr<TextResource> findTextResource(const wchar_t* source, const std::wstring& section) {
  auto resource = ResourceManager::getInstance().getTextResource(section);
  if (!resource)
    ReadResourceException(source, __LINE__, L"There is no section of texts of this name.", section).report();
  return resource;
}

void reportMissingText(const wchar_t* source, const std::wstring& key) {
  ReadResourceException(source, __LINE__, L"There is no text of this key.", key).report();
}

std::wstring findResourceText(const wchar_t* source, const std::wstring& section, const std::wstring& key) {
  const auto resource = findTextResource(source, section);
  std::wstring text;
  if (resource && !resource->getText(key, text)) reportMissingText(source, key);
  return text;
}

}  // namespace Tessel
