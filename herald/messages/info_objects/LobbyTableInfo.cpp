#include <herald/messages/info_objects/LobbyTableInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/BitMasking.h>

namespace Tessel {

bool LobbyTableInfo::isVIPTable() const { return BitMasking::getBit(attributes_, VIP_FLAG); }

std::wstring LobbyTableInfo::toDebugString() const {
  return formatText(
      L"[LobbyTableInfo: TableId=%d, TableName=%s, NumSeatedPlayers=%d, Attributes=%d, MinChipStack=%s, "
      L"MaxChipStack=%s]",
      tableId_, tableName_, numSeatedPlayers_, attributes_, minChipStack_, maxChipStack_);
}

}  // namespace Tessel
