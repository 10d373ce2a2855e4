#include "Printing.h"

namespace Tessel {

std::string_view nameOf(WireType type) {
  constexpr std::string_view NAMES[] = {"", "bool", "byte", "short", "int", "int64", "string"};
  return NAMES[static_cast<std::size_t>(type)];
}

Bodies bodiesOf(std::span<const MessageSchema> messages) {
  Bodies bodies;
  for (const MessageSchema& message : messages) {
    if (message.body != nullptr) bodies.emplace(message.body->name, message.body);
  }
  return bodies;
}

}  // namespace Tessel
