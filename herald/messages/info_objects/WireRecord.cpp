#include <herald/messages/info_objects/WireRecord.h>

namespace Tessel {

ReadableObjectInfo::~ReadableObjectInfo() = default;
WritableObjectInfo::~WritableObjectInfo() = default;
ReadableInfo::~ReadableInfo() = default;
ReadableWritableInfo::~ReadableWritableInfo() = default;

}  // namespace Tessel
