#pragma once
#include <herald/platform/keystone/StreamObjects.h>
#include <herald/wire/MessageMemory.h>

#include <string>

namespace Tessel {

class AbstractClientMessageHandler;
class FieldSink;

/// Base of every message from a server. A message is a value; one thread at a time uses it. See `MessageMemory` for
/// where what it read lives.
class HERALD_API ClientMessage : public StreamReadableObject {
 public:
  /// Reads the body, at whose first byte the stream stands, and answers whether it could be read. Throws what its
  /// fields throw.
  bool read(ByteStream& in) override = 0;
  /// Calls the handler's operation for the message's own class. The message stays the caller's.
  virtual void handle(AbstractClientMessageHandler& handler) const = 0;
  /// One line of text for traces.
  virtual std::wstring toDebugString() const = 0;
  /// Tells the sink every field of the body, in wire order. One that does not say what its fields are tells nothing.
  virtual void describe(FieldSink&) const {}

  /// A tag for the component that receives the message, -1 at first; it never travels.
  void setNodeId(int nodeId) { nodeId_ = nodeId; }
  int getNodeId() const { return nodeId_; }

 protected:
  ClientMessage() = default;
  ClientMessage(const ClientMessage&) = default;
  ClientMessage(ClientMessage&&) = default;
  ClientMessage& operator=(const ClientMessage&) = default;
  ClientMessage& operator=(ClientMessage&&) = default;

  /// For `read`: the message's own memory, or null when that holds what an earlier read took.
  MessageMemory* memoryToReadInto() { return memory_.isUnused() ? &memory_ : nullptr; }

 private:
  MessageMemory memory_;
  int nodeId_ = -1;
};

}  // namespace Tessel
