#pragma once
#include <herald/messages/ClientMessage.h>

#include <memory>
#include <span>
#include <string_view>

namespace Tessel {

/// A message id that servers send. `name` is the class, empty for an id that creates nothing; `create` is null then.
struct ClientMessageRow {
  int id;
  std::string_view name;
  std::unique_ptr<ClientMessage> (*create)();
};

/// Every id, in ascending order.
HERALD_API std::span<const ClientMessageRow> clientMessageTable();

/// The row of an id; null for an id that is not in the table.
HERALD_API const ClientMessageRow* findClientMessageRow(int id);

}  // namespace Tessel
