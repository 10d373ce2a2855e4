#include <herald/inspect/Requests.h>
#include <herald/messages/RequestFrame.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/Format.h>
#include <herald/platform/keystone/UTFEncoder.h>

namespace Tessel {

namespace {

DecodedRequest readRequest(int id, ByteStream& body) {
  const ServerMessageRow* row = findServerMessageRow(id);
  if (row == nullptr) return {.reason = formatText(L"Unknown request (%d)", id)};
  std::unique_ptr<ServerMessage> request = row->create();
  try {
    const bool readAll = row->read(*request, body);
    return {.request = std::move(request),
            .outcome = readAll ? DecodeOutcome::DECODED : DecodeOutcome::READ_ANSWERED_FALSE};
  } catch (const std::exception& failure) {
    return {.outcome = DecodeOutcome::READ_THREW, .reason = UTFEncoder::toWide(failure.what())};
  }
}

}  // namespace

DecodedRequest decodeRequest(int id, ByteStream& body) {
  const std::size_t before = body.unreadCount();
  DecodedRequest result = readRequest(id, body);
  result.bytesLeft = body.unreadCount();
  result.bytesRead = before - result.bytesLeft;
  return result;
}

void RequestFrames::append(std::span<const std::uint8_t> bytes) {
  bytes_.erase(bytes_.begin(), bytes_.begin() + static_cast<std::ptrdiff_t>(position_));
  position_ = 0;
  bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
}

std::optional<RequestFrames::Frame> RequestFrames::next() {
  if (pendingCount() < FRAME_HEADER_SIZE) return std::nullopt;
  const std::span<const std::uint8_t> pending = std::span(bytes_).subspan(position_);
  ByteStream header = ByteStream::view(pending.first(FRAME_HEADER_SIZE));
  std::int16_t id = 0;
  std::int16_t size = 0;
  header >> id >> size;
  if (size < 0)
    throw KeystoneException(L"inspect/Requests", __LINE__,
                            formatText(L"The frame of the request %d has the size %d.", id, size));
  const std::size_t frameSize = FRAME_HEADER_SIZE + static_cast<std::size_t>(size);
  if (pending.size() < frameSize) return std::nullopt;
  position_ += frameSize;
  return Frame{id, pending.subspan(FRAME_HEADER_SIZE, static_cast<std::size_t>(size))};
}

}  // namespace Tessel
