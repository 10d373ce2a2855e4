#pragma once
#include <herald/platform/keystone/StreamObjects.h>

#include <string>

namespace Tessel {

class FieldSink;

/// Base of every record that the client sends.
class HERALD_API WritableObjectInfo : public StreamWritableObject {
 public:
  /// One line of text for traces.
  virtual std::wstring toDebugString() const = 0;
  /// The number of bytes that `write` appends.
  virtual int size() const = 0;
  /// Tells the sink every field, in wire order. One that does not say what its fields are tells nothing.
  virtual void describe(FieldSink&) const {}

 protected:
  WritableObjectInfo() = default;
  WritableObjectInfo(const WritableObjectInfo&) = default;
  WritableObjectInfo(WritableObjectInfo&&) = default;
  WritableObjectInfo& operator=(const WritableObjectInfo&) = default;
  WritableObjectInfo& operator=(WritableObjectInfo&&) = default;
};

}  // namespace Tessel
