#pragma once
#include <herald/messages/ServerMessage.h>

#include <memory>
#include <span>
#include <string_view>

namespace Tessel {

/// A request id that the client sends, with its class.
struct ServerMessageRow {
  int id;
  std::string_view name;
  std::unique_ptr<ServerMessage> (*create)();
};

/// Every id, in ascending order.
HERALD_API std::span<const ServerMessageRow> serverMessageTable();

/// The row of an id; null for an id that no request has.
HERALD_API const ServerMessageRow* findServerMessageRow(int id);

}  // namespace Tessel
