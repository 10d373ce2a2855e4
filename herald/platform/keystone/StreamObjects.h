#pragma once
#include <herald/platform/keystone/Export.h>

namespace Tessel {

class ByteStream;

/// An object that reads itself from a stream.
class HERALD_API StreamReadableObject {
 public:
  virtual ~StreamReadableObject() = default;
  /// Reads the object and answers whether it could be read. A number that the stream is too short for throws
  /// `KeystoneException`.
  virtual bool read(ByteStream& in) = 0;

 protected:
  StreamReadableObject() = default;
  StreamReadableObject(const StreamReadableObject&) = default;
  StreamReadableObject(StreamReadableObject&&) = default;
  StreamReadableObject& operator=(const StreamReadableObject&) = default;
  StreamReadableObject& operator=(StreamReadableObject&&) = default;
};

/// An object that appends itself to a stream.
class HERALD_API StreamWritableObject {
 public:
  virtual ~StreamWritableObject() = default;
  /// Appends the object and answers whether it could be written.
  [[nodiscard]] virtual bool write(ByteStream& out) const = 0;

 protected:
  StreamWritableObject() = default;
  StreamWritableObject(const StreamWritableObject&) = default;
  StreamWritableObject(StreamWritableObject&&) = default;
  StreamWritableObject& operator=(const StreamWritableObject&) = default;
  StreamWritableObject& operator=(StreamWritableObject&&) = default;
};

}  // namespace Tessel
