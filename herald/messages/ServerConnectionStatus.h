#pragma once
#include <herald/dispatch/ConnectionStatus.h>
#include <herald/messages/ClientMessage.h>
#include <herald/platform/keystone/ClonePointer.h>

namespace Tessel {

/// Carries a connection event through the delivery of messages. The client makes it; it has no id and never travels.
class HERALD_API ServerConnectionStatus : public ClientMessage {
 public:
  /// Keeps a clone of the event, which must not be null.
  explicit ServerConnectionStatus(const ConnectionStatus* status);
  /// A clone of the other's event; the node id is the new object's own, -1.
  ServerConnectionStatus(const ServerConnectionStatus& other);
  /// The node id stays.
  ServerConnectionStatus& operator=(const ServerConnectionStatus& other);
  ~ServerConnectionStatus() override;

  /// The event stays the message's.
  const ConnectionStatus* getConnectionStatus() const { return status_.get(); }

  /// Reads nothing.
  bool read(ByteStream& in) override;
  void handle(AbstractClientMessageHandler& handler) const override;
  std::wstring toDebugString() const override;
  void describe(FieldSink& sink) const override;

 private:
  ClonePointer<ConnectionStatus> status_;
};

}  // namespace Tessel
