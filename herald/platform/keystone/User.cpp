#include <herald/platform/keystone/Format.h>
#include <herald/platform/keystone/User.h>

#include <utility>

namespace Tessel {

User::User(int id, std::wstring nickName) : id_(id), nickName_(std::move(nickName)) {}

std::wstring User::toDebugString() const { return formatText(L"[User: Id=%d, NickName=%s]", id_, nickName_); }

}  // namespace Tessel
