#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/ChatMessage.h>
#include <herald/messages/info_objects/VIPList.h>
#include <herald/platform/tableau/AdminNotification.h>

// Chat, VIP players and notices from the operators.

namespace Tessel {

/// A line of chat at a table.
class HERALD_API ClientChatMsg : public RecordMessage<ClientChatMsg, ChatMessage, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[ClientChatMsg: %s]";
  const ChatMessage& getChatMessage() const { return body(); }
};

/// A line of chat for everyone.
class HERALD_API ClientGlobalChatMsg : public RecordMessage<ClientGlobalChatMsg, ChatMessage, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[ClientGlobalChatMsg: %s]";
  const ChatMessage& getChatMessage() const { return body(); }
};

class HERALD_API AbusiveChatWarning : public EmptyMessage<AbusiveChatWarning> {
 public:
  static constexpr auto TEXT = L"[AbusiveChatMessage]";
};

/// The VIP players who are logged in.
class HERALD_API VIPInfo : public RecordMessage<VIPInfo, VIPList> {
 public:
  static constexpr auto TEXT = L"VIPInfo, use traceDebugString instead (result is to large for CString)";
  int getSize() const { return body().size(); }
  const VIPList& getVIPList() const { return body(); }
};

/// A VIP player has logged in.
class HERALD_API VIPLoginAnnounce : public RecordMessage<VIPLoginAnnounce, TsString, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[VIPLoginAnnounce: VIPName: %s";
  static constexpr auto FIELD = "vipName";
  std::wstring getVIPName() const { return body().getString(); }
};

class HERALD_API AdminNotificationMsg : public RecordMessage<AdminNotificationMsg, TsString, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[AdminNotificationMsg: Message=%s]";
  static constexpr auto FIELD = "notification";
  AdminNotification getNotification() const { return AdminNotification(body().getString()); }
};

class HERALD_API ClientExtendedWelcomeMessage
    : public RecordMessage<ClientExtendedWelcomeMessage, TsString, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[ClientExtendedWelcomeMessage: Message: %s]";
  static constexpr auto FIELD = "message";
  std::wstring getMessage() const { return body().getString(); }
};

class HERALD_API ClientServerShutDown : public EmptyMessage<ClientServerShutDown> {
 public:
  static constexpr auto TEXT = L"[ClientServerShutDown]";
};

}  // namespace Tessel
