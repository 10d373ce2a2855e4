#include <herald/wire/FieldSink.h>

namespace Tessel {

FieldSink::~FieldSink() = default;

void FieldSink::namedNumber(std::string_view name, WireType type, std::int64_t value, std::string_view) {
  number(name, type, value);
}

}  // namespace Tessel
