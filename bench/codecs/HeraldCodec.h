#pragma once
#include <bench/codecs/Operations.h>
#include <herald/inspect/Inspectable.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/platform/keystone/ByteStream.h>

#include <memory>
#include <span>

namespace Bench {

/// The stream that an application makes of a body for its decoding.
inline Tessel::ByteStream streamOver(std::span<const std::uint8_t> body) { return Tessel::ByteStream::view(body); }

inline std::unique_ptr<Tessel::ClientMessage> decode(int id, std::span<const std::uint8_t> body) {
  Tessel::ByteStream in = streamOver(body);
  return std::unique_ptr<Tessel::ClientMessage>(Tessel::ClientMessageFactory::byteArrayToMessage(id, in));
}

/// The same, for checks: throws unless there is a message, which took all of the body and encodes to it again.
std::unique_ptr<Tessel::ClientMessage> decodeChecked(int id, const Bytes& body);

Values valuesOf(Tessel::Inspectable object);

}  // namespace Bench
