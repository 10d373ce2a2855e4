#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/InfoVector.h>
#include <herald/messages/info_objects/PokerGameStateInfo.h>
#include <herald/messages/info_objects/TableInformation.h>

// The whole table.

namespace Tessel {

/// The state of the table that the client has joined.
class HERALD_API GameStateInfoMsg : public RecordMessage<GameStateInfoMsg, PokerGameStateInfo> {
 public:
  static constexpr auto TEXT = L"[GameStateInfoMsg]";
  const PokerGameStateInfo& getGameStateInfo() const { return body(); }
};

/// The answer to a request for the table's information.
class HERALD_API ClientTableInfo : public RecordMessage<ClientTableInfo, TableInformation> {
 public:
  static constexpr auto TEXT = L"[TableInfo: %s]";
  const TableInformation& getTableInformation() const { return body(); }
};

/// The server asks the client to open tables.
class HERALD_API ClientOpenTableReq : public RecordMessage<ClientOpenTableReq, InfoVector> {
 public:
  static constexpr auto TEXT = L"[ClientOpenTableReq:%s]";
  int numInfos() const { return body().size(); }
  /// An index outside 0 to `numInfos()` - 1 throws `OutOfBoundsException`, an entry of another class `std::bad_cast`.
  const PokerGameInfo& getPokerGameInfo(int i) const { return dynamic_cast<const PokerGameInfo&>(body()[i]); }
};

}  // namespace Tessel
