#pragma once
#include <span>

namespace Tessel {

struct EnglishText {
  const wchar_t* section;
  const wchar_t* key;
  const wchar_t* text;
};

/// Every text that the library comes with.
std::span<const EnglishText> englishTexts();

}  // namespace Tessel
