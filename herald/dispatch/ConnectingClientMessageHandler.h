#pragma once
#include <herald/dispatch/DefaultClientMessageHandler.h>

namespace Tessel {

/// The base of handlers that make a connection: it leaves to them what every connection must answer.
class HERALD_API ConnectingClientMessageHandler : public virtual DefaultClientMessageHandler {
 public:
  /// The stages of a component's connection.
  static constexpr char CONNECTION_NONE = 0;
  static constexpr char CONNECTION_BROKEN = 1;
  static constexpr char CONNECTION_PENDING_OK = 2;
  static constexpr char CONNECTION_OK = 3;
  static constexpr char CONNECTION_PENDING_REG = 5;
  static constexpr char CONNECTION_SUBSCRIBE_GLOBAL = 10;
  static constexpr char CONNECTION_SUBSCRIBE_SPECIFIC = 20;

  ~ConnectingClientMessageHandler() override;

  using DefaultClientMessageHandler::handle;
  void handle(const ClientGlobalChatMsg& message) override = 0;
  void handle(const ClientChatMsg& message) override = 0;
  void handle(const Ping& message) override = 0;
  void handle(const ConnectOk& message) override = 0;
};

}  // namespace Tessel
