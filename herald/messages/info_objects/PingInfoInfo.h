#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

namespace Tessel {

/// How fast the connection of a player at a table is.
class HERALD_API PingInfoInfo : public ReadableRecord<PingInfoInfo, ReadableWritableInfo> {
 public:
  std::wstring getNick() const { return nick_.getString(); }
  /// In milliseconds.
  int getPing() const { return ping_; }
  Money getMoneyAtTable() const { return moneyAtTable_.getMoney(); }

  void setNick(std::wstring_view nick) { nick_.setString(nick); }
  void setPing(int ping) { ping_ = static_cast<std::int16_t>(ping); }
  void setMoneyAtTable(const Money& money) { moneyAtTable_ = MoneyAmount(money); }

  /// The record is never sent: writes nothing and answers false.
  [[nodiscard]] bool write(ByteStream& out) const override;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("nick", self.nick_);
    fields("ping", self.ping_);
    fields("moneyAtTable", self.moneyAtTable_);
  }

 private:
  Text nick_;
  std::int16_t ping_ = -1;
  MoneyAmount moneyAtTable_;
};

}  // namespace Tessel
