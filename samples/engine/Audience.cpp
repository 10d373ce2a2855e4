#include "Audience.h"

#include <herald/messages/ClientMessageTable.h>

#include <algorithm>
#include <stdexcept>
#include <string>

namespace CardRoom {

int messageId(std::string_view messageClass) {
  const auto row = std::ranges::find(Tessel::clientMessageTable(), messageClass, &Tessel::ClientMessageRow::name);
  if (row == Tessel::clientMessageTable().end()) throw std::invalid_argument("no id: " + std::string(messageClass));
  return row->id;
}

bool Teller::isListening(int player) const {
  const std::vector<int> listeners = audience_.listeners();
  return std::ranges::find(listeners, player) != listeners.end();
}

}  // namespace CardRoom
