#pragma once
#include <herald/inspect/Inspectable.h>

#include <string_view>

namespace Tessel {

class ByteStream;
class FieldSource;

/// Appends the wire form of a record, or the body of a message or a request, also of those that the client only reads.
/// What cannot be encoded (a text with a lone surrogate or of more than 65,535 bytes, a list too long for its count) is
/// reported, answers false and leaves the stream as it was. In place of a masked secret stands `SECRET_MASK`.
HERALD_API bool encode(Inspectable object, ByteStream& out, Secrets secrets = Secrets::SHOWN);

/// Appends the body of the message or request, or the wire form of the record, of that class with the values that the
/// source gives, which stands in it. A field that is missing takes its starting value; a missing number that says how
/// many items a list has takes their number.
///
/// Throws `KeystoneException`, and leaves the stream as it was, for a class that no layout has, for a field that is
/// unknown or that does not travel with these values, for a value of the wrong kind or that does not fit, and for the
/// mask of a secret. The text names the field first: "players[2].player.id: 4294967296 does not fit an int".
HERALD_API void encodeFrom(FieldSource& source, std::string_view className, ByteStream& out);

}  // namespace Tessel
