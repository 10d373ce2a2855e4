#pragma once
#include <herald/platform/keystone/Export.h>

#include <string>
#include <utility>

namespace Tessel {

/// What a player entered to log in. Holds a password: nothing of this library prints it.
class HERALD_API UserLoginProperties {
 public:
  UserLoginProperties() = default;
  UserLoginProperties(std::wstring foreignNickName, std::wstring password, bool rememberPassword, bool autoLogin)
      : foreignNickName_(std::move(foreignNickName)), password_(std::move(password)),
        rememberPassword_(rememberPassword), autoLogin_(autoLogin) {}

  const std::wstring& getForeignNickName() const { return foreignNickName_; }
  const std::wstring& getPassword() const { return password_; }
  bool wantsRememberPassword() const { return rememberPassword_; }
  bool wantsAutoLogin() const { return autoLogin_; }

 private:
  std::wstring foreignNickName_;
  std::wstring password_;
  bool rememberPassword_ = false;
  bool autoLogin_ = false;
};

}  // namespace Tessel
