#pragma once
#include <herald/messages/ServerMessage.h>

#include <memory>
#include <span>
#include <string_view>

namespace Tessel {

class ByteStream;

/// A request id that the client sends, with its class.
struct ServerMessageRow {
  int id;
  std::string_view name;
  std::unique_ptr<ServerMessage> (*create)();
  /// Reads a body into a request that `create` made, by the rules by which messages are read: answers whether all of it
  /// could be read, and throws what its records and texts throw.
  bool (*read)(ServerMessage& request, ByteStream& body);
};

/// Every id, in ascending order.
HERALD_API std::span<const ServerMessageRow> serverMessageTable();

/// The row of an id; null for an id that no request has.
HERALD_API const ServerMessageRow* findServerMessageRow(int id);

}  // namespace Tessel
