#pragma once
#include <herald/platform/lexicon/TextResource.h>

#include <shared_mutex>
#include <string_view>

namespace Tessel {

/// The texts that a player sees, by section and key. It starts with the English texts of every key that the library
/// looks up; an application adds or replaces texts with its own. All operations are safe from any thread.
class HERALD_API ResourceManager {
 public:
  /// The category of texts, the only one there is.
  static constexpr int TEXT_CATEGORY = 7;

  static ResourceManager& getInstance();

  /// Answers whether the key has a text, and leaves `out` unchanged when it has none.
  bool getText(int category, const std::wstring& section, const std::wstring& key, std::wstring& out) const;

  /// A section, owned by the caller, or null when there is none. `variant` is 0; no section has another.
  [[nodiscard]] TextResource* getTextResource(int category, const std::wstring& section, int variant) const;
  /// The same for `TEXT_CATEGORY` and variant 0.
  [[nodiscard]] std::unique_ptr<TextResource> getTextResource(const std::wstring& section) const;

  /// Adds texts to a section, in place of those with the same keys. A section that is not there yet is made.
  void addTexts(const std::wstring& section, const TextResource::Texts& texts);
  void removeSection(const std::wstring& section);
  /// Removes everything but the texts that the library comes with.
  void restoreEnglish();

 private:
  /// Sections are replaced as a whole and never changed, so that a `TextResource` can share one.
  using Sections = std::map<std::wstring, std::shared_ptr<const TextResource::Texts>>;

  ResourceManager();
  static Sections englishSections();

  mutable std::shared_mutex lock_;
  Sections sections_;
};

}  // namespace Tessel
