#pragma once
#include <herald/inspect/Inspectable.h>

namespace Tessel {

class ByteStream;

/// Appends the wire form of a record, or the body of a message or a request, also of those that the client only reads.
/// What cannot be encoded (a text with a lone surrogate or of more than 65,535 bytes, a list too long for its count) is
/// reported, answers false and leaves the stream as it was.
HERALD_API bool encode(Inspectable object, ByteStream& out);

}  // namespace Tessel
