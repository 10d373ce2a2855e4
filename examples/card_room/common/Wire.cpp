#include "Wire.h"

#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/Format.h>

using namespace Tessel;

template class Tessel::ReadableRecord<CardRoom::LoginInfo, ReadableWritableInfo>;
template class Tessel::ReadableWritableRecord<CardRoom::LoginInfo>;

namespace CardRoom {

void appendMessage(int id, std::span<const std::uint8_t> body, std::vector<std::uint8_t>& out) {
  if (body.size() > MessageHeader::LONGEST_BODY)
    throw KeystoneException(L"card_room/Wire", __LINE__, L"A message that is too long to send");
  std::uint8_t header[MessageHeader::SIZE];
  BigEndian<std::uint16_t>::store(static_cast<std::uint16_t>(id), header);
  BigEndian<std::uint32_t>::store(static_cast<std::uint32_t>(body.size()), header + sizeof(std::uint16_t));
  out.insert(out.end(), std::begin(header), std::end(header));
  out.insert(out.end(), body.begin(), body.end());
}

void MessageFrames::append(std::span<const std::uint8_t> bytes) {
  if (bytes_.eos())
    bytes_.clear();
  else if (bytes_.position() > 0)
    bytes_ = ByteStream(bytes_.unread());
  bytes_.append(bytes);
}

std::optional<MessageFrames::Frame> MessageFrames::next() {
  if (bytes_.unreadCount() < MessageHeader::SIZE) return std::nullopt;
  const std::size_t start = bytes_.position();
  MessageHeader header;
  bytes_ >> header.id >> header.length;
  if (header.length < 0 || header.length > MessageHeader::LONGEST_BODY)
    throw KeystoneException(L"card_room/Wire", __LINE__, formatText(L"A body of %d bytes is announced", header.length));
  const auto length = static_cast<std::size_t>(header.length);
  if (bytes_.unreadCount() < length) {
    bytes_.seek(start);
    return std::nullopt;
  }
  const Frame frame = {header.id, bytes_.unread().first(length)};
  bytes_.skip(length);
  return frame;
}

std::wstring LoginInfo::toDebugString() const { return formatText(L"[LoginInfo: nick=%s]", getNick()); }

std::wstring LoginRequest::toDebugString() const { return formatText(L"[LoginRequest: %s]", login_.toDebugString()); }

void LoginRequest::writeBody(ByteStream& out) const {
  if (!login_.write(out)) throw KeystoneException(L"card_room/Wire", __LINE__, L"A login that cannot be written");
}

}  // namespace CardRoom
