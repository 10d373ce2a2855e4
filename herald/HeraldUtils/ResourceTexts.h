#pragma once
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/lexicon/TextResource.h>

#include <memory>
#include <optional>
#include <string>

// Internal: not exported.

namespace Tessel {

/// The section, or null after a report that names it.
std::unique_ptr<TextResource> findTextResource(const wchar_t* source, const std::wstring& section);

/// Reports that the key has no text.
void reportMissingText(const wchar_t* source, const std::wstring& key);

/// A text that was looked up; where there is none it is empty and the failure, not reported yet, names what is missing.
struct LookedUpText {
  std::wstring text;
  std::optional<ReadResourceException> failure;
};

LookedUpText lookUpText(const wchar_t* source, const std::wstring& section, const std::wstring& key);

/// The text of a key of a section; empty, after a report, when there is none.
std::wstring findResourceText(const wchar_t* source, const std::wstring& section, const std::wstring& key);

}  // namespace Tessel
