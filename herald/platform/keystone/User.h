#pragma once
#include <herald/platform/keystone/Export.h>

#include <string>

namespace Tessel {

/// The player who is logged in.
class HERALD_API User {
 public:
  User() = default;
  User(int id, std::wstring nickName);

  int getId() const { return id_; }
  const std::wstring& getNickName() const { return nickName_; }
  std::wstring toDebugString() const;

  bool operator==(const User&) const = default;

 private:
  int id_ = -1;
  std::wstring nickName_;
};

}  // namespace Tessel
