#pragma once
#include <herald/platform/lexicon/TextResource.h>

#include <memory>
#include <string>

// Internal: not exported.

namespace Tessel {

/// The section, or null after a report that names it.
std::unique_ptr<TextResource> findTextResource(const wchar_t* source, const std::wstring& section);

/// Reports that the key has no text.
void reportMissingText(const wchar_t* source, const std::wstring& key);

/// The text of a key of a section; empty, after a report, when there is none.
std::wstring findResourceText(const wchar_t* source, const std::wstring& section, const std::wstring& key);

}  // namespace Tessel
