#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>

namespace Tessel {

/// The answer to a request to sit down; the values without a name are the server's.
enum class SitDownStatus : std::int8_t {
  SAT_DOWN = 0,
  FIRST_REFUSED_DUE_TO_MONEY = 6,
  LAST_REFUSED_DUE_TO_MONEY = 8,
  REFUSED_DUE_TO_SYSTEM = 12,
};

/// The answer to a request to sit down, with the money that was in the way when it was refused for that.
class HERALD_API SitDownReplyInfo : public ReadableRecord<SitDownReplyInfo> {
 public:
  SitDownStatus getStatus() const { return static_cast<SitDownStatus>(status_); }
  bool isSatDown() const { return getStatus() == SitDownStatus::SAT_DOWN; }
  bool isRefusedDueToMoney() const { return refusedDueToMoney(); }
  bool isRefusedDueToSystem() const { return getStatus() == SitDownStatus::REFUSED_DUE_TO_SYSTEM; }
  Money getMoney() const { return money_.getMoney(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template named<SitDownStatus>("status", self.status_);
    fields.onlyIf(self.refusedDueToMoney(), "money", self.money_);
  }

 private:
  Condition refusedDueToMoney() const {
    return isBetween("status", status_, static_cast<int>(SitDownStatus::FIRST_REFUSED_DUE_TO_MONEY),
                     static_cast<int>(SitDownStatus::LAST_REFUSED_DUE_TO_MONEY));
  }

  std::int8_t status_ = -1;
  MoneyAmount money_;
};

}  // namespace Tessel
