#include <herald/HeraldUtils/ResourceTexts.h>
#include <herald/platform/lexicon/ResourceManager.h>

#include <utility>

namespace Tessel {

namespace {

ReadResourceException missingSection(const wchar_t* source, const std::wstring& section) {
  return {source, __LINE__, L"There is no section of texts of this name.", section};
}

ReadResourceException missingText(const wchar_t* source, const std::wstring& key) {
  return {source, __LINE__, L"There is no text of this key.", key};
}

}  // namespace

std::unique_ptr<TextResource> findTextResource(const wchar_t* source, const std::wstring& section) {
  auto resource = ResourceManager::getInstance().getTextResource(section);
  if (!resource) missingSection(source, section).report();
  return resource;
}

void reportMissingText(const wchar_t* source, const std::wstring& key) { missingText(source, key).report(); }

LookedUpText lookUpText(const wchar_t* source, const std::wstring& section, const std::wstring& key) {
  const auto resource = ResourceManager::getInstance().getTextResource(section);
  if (!resource) return {{}, missingSection(source, section)};
  std::wstring text;
  if (!resource->getText(key, text)) return {{}, missingText(source, key)};
  return {std::move(text), std::nullopt};
}

std::wstring findResourceText(const wchar_t* source, const std::wstring& section, const std::wstring& key) {
  LookedUpText found = lookUpText(source, section, key);
  if (found.failure) found.failure->report();
  return std::move(found.text);
}

}  // namespace Tessel
