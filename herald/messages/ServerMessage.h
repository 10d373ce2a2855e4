#pragma once
#include <herald/platform/keystone/StreamObjects.h>

#include <string>

namespace Tessel {

class FieldSink;

/// Base of every request to a server. A request travels in a frame: its id, the number of bytes of its body (both
/// signed 16-bit, the four header bytes not counted), then the body.
class HERALD_API ServerMessage : public StreamWritableObject {
 public:
  /// Appends the whole frame. A request that cannot be written (a text that cannot be encoded, a body of 32,768 bytes
  /// or more) is reported, answers false and leaves the stream as it was.
  [[nodiscard]] bool write(ByteStream& out) const override = 0;
  /// One line of text for traces.
  virtual std::wstring toDebugString() const = 0;
  /// Tells the sink every field of the body, in wire order. One that does not say what its fields are tells nothing.
  virtual void describe(FieldSink&) const {}

 protected:
  ServerMessage() = default;
  ServerMessage(const ServerMessage&) = default;
  ServerMessage(ServerMessage&&) = default;
  ServerMessage& operator=(const ServerMessage&) = default;
  ServerMessage& operator=(ServerMessage&&) = default;
};

}  // namespace Tessel
