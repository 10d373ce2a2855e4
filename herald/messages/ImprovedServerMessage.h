#pragma once
#include <herald/messages/ServerMessage.h>

namespace Tessel {

/// A request whose body is measured after it has been written. One object is not written into two streams at the same
/// time.
class HERALD_API ImprovedServerMessage : public ServerMessage {
 public:
  ~ImprovedServerMessage() override;
  [[nodiscard]] bool write(ByteStream& out) const final;
  std::wstring toDebugString() const override = 0;
  /// Appends the body; throws `KeystoneException` when it cannot be written. That ends the frame: it is reported, and
  /// `write` answers false.
  virtual void writeBody(ByteStream& out) const = 0;
  /// The message id.
  virtual short getPacketDescriptor() const = 0;

 private:
  void writeHeader(ByteStream& out) const;
  bool writeSize(ByteStream& out) const;

  mutable int sizePosition_ = -1;
};

}  // namespace Tessel
