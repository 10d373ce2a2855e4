#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/PlayerInfo.h>

namespace Tessel {

/// A player with the money that the player has at the table.
class HERALD_API PlayerInGameInfo : public ReadableWritableRecord<PlayerInGameInfo, PlayerInfo> {
 public:
  PlayerInGameInfo() = default;
  PlayerInGameInfo(int id, std::wstring_view nickName, std::wstring_view city, const Money& moneyAtTable, int ping,
                   int gameId, std::wstring_view teamName);

  Money getMoneyAtTable() const { return moneyAtTable_.getMoney(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    PlayerInfo::wire(self, fields);
    fields("moneyAtTable", self.moneyAtTable_);
  }

 private:
  MoneyAmount moneyAtTable_;
};

}  // namespace Tessel
