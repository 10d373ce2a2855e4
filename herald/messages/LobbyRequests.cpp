#include <herald/messages/LobbyRequests.h>
#include <herald/messages/RequestOperations.h>

namespace Tessel {

std::wstring ServerChatMsg::toDebugString() const { return formatText(L"[ServerChatMsg: %s]", message_); }

std::wstring ServerGlobalChatMsg::toDebugString() const { return formatText(L"[ServerGlobalChatMsg: %s]", message_); }

std::wstring Pong::toDebugString() const { return formatText(L"[Pong: server time=%d, ping=%d]", serverTime_, ping_); }

std::wstring ServerSettings::toDebugString() const { return formatText(L"[ServerSettings: %d]", bits_); }

}  // namespace Tessel
