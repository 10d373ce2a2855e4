#pragma once
#include <herald/platform/keystone/MVCModel.h>
#include <herald/platform/keystone/Money.h>
#include <herald/platform/keystone/NotificationUpdateObject.h>
#include <herald/platform/keystone/TsArray.h>

namespace Tessel {

/// The user's account balances, one per monetary unit, in the user's order of priority. Of two entries of one unit the
/// first counts. One instance for the process; every operation is safe from any thread and holds the model's lock for
/// its whole work, the notification with a `UserAccountUpdateObject` included.
class HERALD_API UserAccountModel : public MVCModel {
 public:
  ~UserAccountModel() override;

  static UserAccountModel& getUserAccountModel();

  /// Replaces the whole list and notifies.
  void newPriorityList(const TsArray<Money>& balances);
  /// The balance at that place, from 0; false, with `balance` unchanged, for a place that is not there.
  bool getAccountPrio(int priority, Money& balance) const;
  /// The balance in that monetary unit, 0 when there is no account.
  Money getAccount(int monetaryUnitId) const;
  /// Adds to the account in the amount's monetary unit and notifies; nothing happens when there is none.
  void addToAccount(Money amount);
  /// Replaces the balance in its monetary unit and notifies; nothing happens when there is no account.
  void setAccount(Money balance);

 private:
  UserAccountModel();

  int getIndex(int monetaryUnitId) const;

  static UserAccountModel& cInstance;

  TsArray<Money> priorityList_;
};

/// The balances changed.
class HERALD_API UserAccountUpdateObject : public NotificationUpdateObject {
 public:
  using NotificationUpdateObject::NotificationUpdateObject;
  [[nodiscard]] NotificationUpdateObject* clone() const override;
};

}  // namespace Tessel
