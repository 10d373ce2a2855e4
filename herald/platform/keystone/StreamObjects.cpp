#include <herald/platform/keystone/StreamObjects.h>

namespace Tessel {

StreamReadableObject::~StreamReadableObject() = default;
StreamWritableObject::~StreamWritableObject() = default;

}  // namespace Tessel
