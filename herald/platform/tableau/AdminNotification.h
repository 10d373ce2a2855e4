#pragma once
#include <herald/platform/keystone/Export.h>

#include <string>
#include <utility>

namespace Tessel {

/// A text from the operators of the site to the player.
class HERALD_API AdminNotification {
 public:
  AdminNotification() = default;
  explicit AdminNotification(std::wstring text) : text_(std::move(text)) {}

  const std::wstring& getText() const { return text_; }

  bool operator==(const AdminNotification&) const = default;

 private:
  std::wstring text_;
};

}  // namespace Tessel
