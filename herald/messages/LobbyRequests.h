#pragma once
#include <herald/messages/WireRequest.h>
#include <herald/messages/info_objects/ChatMessage.h>
#include <herald/messages/info_objects/JoinRequest.h>
#include <herald/messages/info_objects/SubscriptionInfo.h>

#include <cstdint>
#include <utility>

// What the client asks of the lobby.

namespace Tessel {

class HERALD_API JoinLobbyRequest : public RecordRequest<JoinLobbyRequest, -10, JoinRequest> {
 public:
  static constexpr auto TEXT = L"[JoinLobbyRequest: %s]";
  JoinLobbyRequest() = default;
  explicit JoinLobbyRequest(int lobbyId) : RecordRequest(JoinRequest(lobbyId, -1)) {}
  /// The lobby's id stands for the game's; no player.
  const JoinRequest& getJoinRequest() const { return body(); }
};

class HERALD_API JoinGameRequest : public RecordRequest<JoinGameRequest, -12, JoinRequest> {
 public:
  static constexpr auto TEXT = L"[JoinGameRequest: %s]";
  JoinGameRequest() = default;
  JoinGameRequest(int gameId, int playerId) : RecordRequest(JoinRequest(gameId, playerId)) {}
  const JoinRequest& getJoinRequest() const { return body(); }
};

/// A line of chat for the others at the table.
class HERALD_API ServerChatMsg : public ImprovedRequest<ServerChatMsg, -22> {
 public:
  ServerChatMsg() = default;
  explicit ServerChatMsg(ChatMessage message) : message_(std::move(message)) {}

  const ChatMessage& getChatMessage() const { return message_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("body", self.message_);
  }

 private:
  ChatMessage message_;
};

/// A line of chat for everyone.
class HERALD_API ServerGlobalChatMsg : public ImprovedRequest<ServerGlobalChatMsg, -36> {
 public:
  ServerGlobalChatMsg() = default;
  ServerGlobalChatMsg(std::wstring_view nickname, std::wstring_view message) : message_(nickname, message) {}

  const ChatMessage& getChatMessage() const { return message_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("body", self.message_);
  }

 private:
  ChatMessage message_;
};

class HERALD_API JoinWaitingReq : public EmptyRequest<JoinWaitingReq, -38> {
 public:
  static constexpr auto TEXT = L"[JoinWaitingReq]";
};

class HERALD_API LeaveWaitingReq : public EmptyRequest<LeaveWaitingReq, -43> {
 public:
  static constexpr auto TEXT = L"[LeaveWaitingReq]";
};

class HERALD_API GameListRequestMsg : public EmptyRequest<GameListRequestMsg, -48> {
 public:
  static constexpr auto TEXT = L"[GameListRequestMsg]";
};

/// The answer to `Ping`.
class HERALD_API Pong : public WireRequest<Pong, -8> {
 public:
  Pong() = default;
  Pong(std::int64_t serverTime, int ping) : serverTime_(serverTime), ping_(static_cast<std::int16_t>(ping)) {}

  /// As the server sent it.
  std::int64_t getServerTime() const { return serverTime_; }
  /// In milliseconds.
  int getPing() const { return ping_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("serverTime", self.serverTime_);
    fields("ping", self.ping_);
  }

 private:
  std::int64_t serverTime_ = -1;
  std::int16_t ping_ = -1;
};

/// Asks for the VIP players, and for news of them.
class HERALD_API VIPRequest : public EmptyRequest<VIPRequest, -60> {
 public:
  static constexpr auto TEXT = L"[VIPRequest:]";
};

class HERALD_API UnSubscribeVIPs : public EmptyRequest<UnSubscribeVIPs, -61> {
 public:
  static constexpr auto TEXT = L"[UnSubscribeVIPs:]";
};

class HERALD_API GetTreeReq : public EmptyRequest<GetTreeReq, -63> {
 public:
  static constexpr auto TEXT = L"[GetTreeReq]";
};

class HERALD_API SubscribeNodeReq : public RecordRequest<SubscribeNodeReq, -66, SubscriptionInfo> {
 public:
  static constexpr auto TEXT = L"[SubscribeNodeReq - SubscriptionInfo iInfo=%s]\n";
  SubscribeNodeReq() = default;
  explicit SubscribeNodeReq(const SubscriptionInfo& subscription) : RecordRequest(subscription) {}
  const SubscriptionInfo& getSubscriptionInfo() const { return body(); }
};

class HERALD_API UnSubscribeNodeReq : public RecordRequest<UnSubscribeNodeReq, -67, SubscriptionInfo> {
 public:
  static constexpr auto TEXT = L"[UnSubscribeNodeReq]";
  UnSubscribeNodeReq() = default;
  explicit UnSubscribeNodeReq(const SubscriptionInfo& subscription) : RecordRequest(subscription) {}
  const SubscriptionInfo& getSubscriptionInfo() const { return body(); }
};

class HERALD_API MonetaryInfoReq : public EmptyRequest<MonetaryInfoReq, -79> {
 public:
  static constexpr auto TEXT = L"[MonetaryInfoReq]";
};

class HERALD_API AccountBalanceInfoReq : public EmptyRequest<AccountBalanceInfoReq, -81> {
 public:
  static constexpr auto TEXT = L"[AccountBalanceInfoReq:]";
};

class HERALD_API ServerSettings : public WireRequest<ServerSettings, 140> {
 public:
  ServerSettings() = default;
  /// The value of a `SettingsInfo`.
  explicit ServerSettings(std::int64_t bits) : bits_(bits) {}

  std::int64_t getBits() const { return bits_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("bits", self.bits_);
  }

 private:
  std::int64_t bits_ = 0;
};

}  // namespace Tessel
