#pragma once
#include <herald/platform/keystone/StreamObjects.h>

#include <memory>
#include <string>

namespace Tessel {

class FieldSink;

/// Base of every record that the client reads. A record is a value: it owns all that it holds, and one thread at a time
/// uses it.
class HERALD_API ReadableObjectInfo : public StreamReadableObject {
 public:
  /// A new copy of the record's own class. The caller owns it.
  [[nodiscard]] virtual ReadableObjectInfo* clone() const = 0;
  /// One line of text for traces.
  virtual std::wstring toDebugString() const = 0;
  /// Tells the sink every field, in wire order. One that does not say what its fields are tells nothing.
  virtual void describe(FieldSink&) const {}

  [[nodiscard]] std::unique_ptr<ReadableObjectInfo> cloneOwned() const {
    return std::unique_ptr<ReadableObjectInfo>(clone());
  }

 protected:
  ReadableObjectInfo() = default;
  ReadableObjectInfo(const ReadableObjectInfo&) = default;
  ReadableObjectInfo(ReadableObjectInfo&&) = default;
  ReadableObjectInfo& operator=(const ReadableObjectInfo&) = default;
  ReadableObjectInfo& operator=(ReadableObjectInfo&&) = default;
};

}  // namespace Tessel
