#include <herald/messages/ImprovedServerMessage.h>
#include <herald/messages/RequestFrame.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

UnwritableBody::UnwritableBody()
    : KeystoneException(L"messages/ImprovedServerMessage", __LINE__, L"The body cannot be written.") {}

ImprovedServerMessage::~ImprovedServerMessage() = default;

bool ImprovedServerMessage::write(ByteStream& out) const {
  FrameGuard frame(out);
  try {
    writePacketDescriptor(out);
    reservePlaceForSize(out);
    writeBody(out);
  } catch (const UnwritableBody&) {
    return false;
  } catch (const KeystoneException& failure) {
    failure.report();
    return false;
  }
  return writeSize(out) && frame.complete();
}

void ImprovedServerMessage::writePacketDescriptor(ByteStream& out) const { out << getPacketDescriptor(); }

void ImprovedServerMessage::reservePlaceForSize(ByteStream& out) const {
  sizePosition_ = out.GetSize();
  out << std::int16_t{-1};
}

bool ImprovedServerMessage::writeSize(ByteStream& out) const {
  const int size = out.GetSize() - sizePosition_ - 2;
  if (static_cast<std::size_t>(size) > MAX_BODY_SIZE) {
    reportBodyTooLong(static_cast<std::size_t>(size));
    return false;
  }
  out.SetAt(sizePosition_, static_cast<char>(size >> 8));
  out.SetAt(sizePosition_ + 1, static_cast<char>(size));
  return true;
}

}  // namespace Tessel
