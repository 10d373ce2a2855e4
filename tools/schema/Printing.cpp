#include "Printing.h"

namespace Tessel {

Bodies bodiesOf(std::span<const MessageSchema> messages) {
  Bodies bodies;
  for (const MessageSchema& message : messages) {
    if (message.body != nullptr) bodies.emplace(message.body->name, message.body);
  }
  return bodies;
}

}  // namespace Tessel
