#pragma once
#include <herald/inspect/Inspectable.h>

namespace Tessel {

struct JsonOptions {
  /// One line per value, or everything in one line.
  bool indented = false;
  Secrets secrets = Secrets::MASKED;
};

/// A message, request or record as a JSON object in UTF-8: "class" first, then the fields in wire order. Nested records
/// are objects and lists are arrays; a field that did not travel is left out; 64-bit numbers are whole. What lies
/// deeper than 16 levels is not indented further.
HERALD_API std::string toJson(Inspectable object, JsonOptions options = {});
/// The same, behind what is in `out` already.
HERALD_API void appendJson(Inspectable object, std::string& out, JsonOptions options = {});

/// A text in UTF-8 as a JSON string, quotes included. What is no UTF-8, such as a lone surrogate, becomes U+FFFD.
HERALD_API std::string toJsonString(std::string_view utf8);
/// The same, behind what is in `out` already.
HERALD_API void appendJsonString(std::string_view utf8, std::string& out);

}  // namespace Tessel
