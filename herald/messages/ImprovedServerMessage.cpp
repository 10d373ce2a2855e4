#include <herald/messages/ImprovedServerMessage.h>
#include <herald/messages/RequestFrame.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/wire/WireWriter.h>

namespace Tessel {

UnwritableBody::UnwritableBody()
    : KeystoneException(L"messages/ImprovedServerMessage", __LINE__, L"The body cannot be written.") {}

ImprovedServerMessage::~ImprovedServerMessage() = default;

// With place for the size, which is not known yet.
inline void ImprovedServerMessage::writeHeader(ByteStream& out) const {
  WireWriter header(out.prepare(FRAME_HEADER_SIZE));
  header("id", std::int16_t{getPacketDescriptor()});
  header("size", std::int16_t{-1});
  out.commit(FRAME_HEADER_SIZE);
  sizePosition_ = out.GetSize() - static_cast<int>(sizeof(std::int16_t));
}

inline bool ImprovedServerMessage::writeSize(ByteStream& out) const {
  const int size = out.GetSize() - sizePosition_ - static_cast<int>(sizeof(std::int16_t));
  if (static_cast<std::size_t>(size) > MAX_BODY_SIZE) {
    reportBodyTooLong(static_cast<std::size_t>(size));
    return false;
  }
  out.SetAt(sizePosition_, static_cast<char>(size >> 8));
  out.SetAt(sizePosition_ + 1, static_cast<char>(size));
  return true;
}

bool ImprovedServerMessage::write(ByteStream& out) const {
  FrameGuard frame(out);
  try {
    writeHeader(out);
    writeBody(out);
  } catch (const UnwritableBody&) {
    return false;
  } catch (const KeystoneException& failure) {
    failure.report();
    return false;
  }
  return writeSize(out) && frame.complete();
}

}  // namespace Tessel
