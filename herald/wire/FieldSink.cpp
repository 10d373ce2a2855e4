#include <herald/wire/FieldSink.h>

namespace Tessel {

FieldSink::~FieldSink() = default;

}  // namespace Tessel
