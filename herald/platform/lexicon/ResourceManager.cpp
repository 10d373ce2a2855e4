#include <herald/platform/lexicon/EnglishTexts.h>
#include <herald/platform/lexicon/ResourceManager.h>

#include <mutex>
#include <utility>

namespace Tessel {

ResourceManager::ResourceManager() : sections_(englishSections()) {}

ResourceManager& ResourceManager::getInstance() {
  // Never destroyed: objects that outlive main may still look up a text.
  static ResourceManager& instance = *new ResourceManager;
  return instance;
}

ResourceManager::Sections ResourceManager::englishSections() {
  std::map<std::wstring, TextResource::Texts> texts;
  for (const EnglishText& english : englishTexts()) texts[english.section].emplace(english.key, english.text);
  Sections sections;
  for (auto& [section, sectionTexts] : texts)
    sections.emplace(section, std::make_shared<const TextResource::Texts>(std::move(sectionTexts)));
  return sections;
}

bool ResourceManager::getText(int category, const std::wstring& section, const std::wstring& key,
                              std::wstring& out) const {
  const std::unique_ptr<TextResource> resource(getTextResource(category, section, 0));
  return resource && resource->getText(key, out);
}

TextResource* ResourceManager::getTextResource(int category, const std::wstring& section, int variant) const {
  if (category != TEXT_CATEGORY || variant != 0) return nullptr;
  return getTextResource(section).release();
}

std::unique_ptr<TextResource> ResourceManager::getTextResource(const std::wstring& section) const {
  const std::shared_lock guard(lock_);
  const auto found = sections_.find(section);
  return found == sections_.end() ? nullptr : std::make_unique<TextResource>(found->second);
}

void ResourceManager::addTexts(const std::wstring& section, const TextResource::Texts& texts) {
  TextResource::Texts merged = texts;
  const std::lock_guard guard(lock_);
  if (const auto found = sections_.find(section); found != sections_.end())
    merged.insert(found->second->begin(), found->second->end());
  sections_[section] = std::make_shared<const TextResource::Texts>(std::move(merged));
}

void ResourceManager::removeSection(const std::wstring& section) {
  const std::lock_guard guard(lock_);
  sections_.erase(section);
}

void ResourceManager::restoreEnglish() {
  Sections english = englishSections();
  const std::lock_guard guard(lock_);
  sections_.swap(english);
}

}  // namespace Tessel
