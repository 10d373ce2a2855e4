#pragma once
#include <herald/dispatch/ConnectionStatus.h>
#include <herald/mailboxes/MessageKind.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/ClonePointer.h>

#include <utility>

namespace Tessel {

class ClientDataMessage;
class ConnectionStatusMessage;

/// Receives the data and the status of server connections: one operation per kind.
class HERALD_API ServerViewMessageHandler {
 public:
  virtual ~ServerViewMessageHandler();

  virtual void handle(const ConnectionStatusMessage& message) = 0;
  virtual void handle(const ClientDataMessage& message) = 0;
};

/// Base of what comes from one server connection. The consumer calls `handle` and then deletes the message.
class HERALD_API ServerViewMessage {
 public:
  using Handler = ServerViewMessageHandler;

  explicit ServerViewMessage(int connectionId) : connectionId_(connectionId) {}
  virtual ~ServerViewMessage();
  /// Calls the handler's operation for the message's own kind.
  virtual void handle(ServerViewMessageHandler& handler) const = 0;
  virtual int getConnectionId() const;

 protected:
  ServerViewMessage(const ServerViewMessage&) = default;
  ServerViewMessage(ServerViewMessage&&) = default;
  ServerViewMessage& operator=(const ServerViewMessage&) = default;
  ServerViewMessage& operator=(ServerViewMessage&&) = default;

 private:
  int connectionId_;
};

/// Something has happened to the connection. It owns a clone of the event, and a copy owns one of its own.
class HERALD_API ConnectionStatusMessage : public MessageKind<ConnectionStatusMessage, ServerViewMessage> {
 public:
  ConnectionStatusMessage(int connectionId, const ConnectionStatus& status)
      : MessageKind(connectionId), status_(status.cloneOwned()) {}

  /// The event stays the message's.
  const ConnectionStatus* getConnectionStatus() const { return status_.get(); }

 private:
  ClonePointer<ConnectionStatus> status_;
};

/// A packet has come: its message id and its own copy of the body, as the message factory takes them.
class HERALD_API ClientDataMessage : public MessageKind<ClientDataMessage, ServerViewMessage> {
 public:
  ClientDataMessage(int connectionId, int packetDescriptor, ByteStream data)
      : MessageKind(connectionId), packetDescriptor_(packetDescriptor), data_(std::move(data)) {}

  int getPacketDescriptor() const { return packetDescriptor_; }
  const ByteStream& getByteStream() const { return data_; }

 private:
  int packetDescriptor_;
  ByteStream data_;
};

/// What a view of a server connection offers to the application, which implements and calls it.
class HERALD_API ServerViewInterface {
 public:
  virtual ~ServerViewInterface();
  virtual void show() = 0;
  virtual void hide() = 0;
};

}  // namespace Tessel
