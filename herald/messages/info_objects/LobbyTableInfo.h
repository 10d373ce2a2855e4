#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A table of a running tournament.
class HERALD_API LobbyTableInfo : public ReadableRecord<LobbyTableInfo> {
 public:
  static constexpr int VIP_FLAG = 0;

  int getTableId() const { return tableId_; }
  std::wstring getTableName() const { return tableName_.getString(); }
  int getNumberOfSeatedPlayers() const { return numSeatedPlayers_; }
  bool isVIPTable() const;
  Money getMinChipStackAtTable() const { return minChipStack_.getMoney(); }
  Money getMaxChipStackAtTable() const { return maxChipStack_.getMoney(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tableId", self.tableId_);
    fields("tableName", self.tableName_);
    fields("numSeatedPlayers", self.numSeatedPlayers_);
    fields("attributes", self.attributes_);
    fields("minChipStack", self.minChipStack_);
    fields("maxChipStack", self.maxChipStack_);
  }

 private:
  std::int32_t tableId_ = -1;
  Text tableName_;
  std::int16_t numSeatedPlayers_ = -1;
  std::int8_t attributes_ = -1;
  MoneyAmount minChipStack_;
  MoneyAmount maxChipStack_;
};

}  // namespace Tessel
