#pragma once
#include <herald/platform/keystone/Export.h>

#include <map>
#include <memory>
#include <string>

namespace Tessel {

/// The texts of one section by their keys, as they were when the section was looked up. Each lookup answers whether the
/// key has a text, and leaves `out` unchanged when it has none. Safe to use from several threads.
class HERALD_API TextResource {
 public:
  using Texts = std::map<std::wstring, std::wstring>;

  explicit TextResource(std::shared_ptr<const Texts> texts);

  bool getText(const std::wstring& key, std::wstring& out) const;

  /// The text with each `{attribute}` that is named here replaced by its value. What stands in a value is not replaced
  /// again; other braces stay as they are.
  bool getStringSubstAttribute(const std::wstring& key, const std::wstring& attribute1, const std::wstring& value1,
                               const std::wstring& attribute2, const std::wstring& value2, std::wstring& out) const;

 private:
  std::shared_ptr<const Texts> texts_;
};

}  // namespace Tessel
