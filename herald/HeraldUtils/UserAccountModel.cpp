#include <herald/HeraldUtils/UserAccountModel.h>

#include <algorithm>
#include <mutex>

namespace Tessel {

UserAccountModel::UserAccountModel() = default;
UserAccountModel::~UserAccountModel() = default;

UserAccountModel& UserAccountModel::getUserAccountModel() {
  // Made by whoever asks first, which may be the constructor of a global object; never destroyed: objects that outlive
  // main may still ask.
  static UserAccountModel& instance = *new UserAccountModel;
  return instance;
}

UserAccountModel& UserAccountModel::cInstance = getUserAccountModel();

void UserAccountModel::newPriorityList(const TsArray<Money>& balances) {
  const std::lock_guard guard(getLock());
  priorityList_ = balances;
  notifyObservers(UserAccountUpdateObject(*this));
}

bool UserAccountModel::getAccountPrio(int priority, Money& balance) const {
  const std::lock_guard guard(getLock());
  if (priority < 0 || priority >= priorityList_.size()) return false;
  balance = priorityList_[priority];
  return true;
}

Money UserAccountModel::getAccount(int monetaryUnitId) const {
  const std::lock_guard guard(getLock());
  const int index = getIndex(monetaryUnitId);
  return index == -1 ? Money(0, monetaryUnitId) : priorityList_[index];
}

void UserAccountModel::addToAccount(Money amount) {
  const std::lock_guard guard(getLock());
  const int index = getIndex(amount.getMonetaryUnitId());
  if (index == -1) return;
  priorityList_[index] += amount;
  notifyObservers(UserAccountUpdateObject(*this));
}

void UserAccountModel::setAccount(Money balance) {
  const std::lock_guard guard(getLock());
  const int index = getIndex(balance.getMonetaryUnitId());
  if (index == -1) return;
  priorityList_[index] = balance;
  notifyObservers(UserAccountUpdateObject(*this));
}

int UserAccountModel::getIndex(int monetaryUnitId) const {
  const auto account = std::ranges::find(priorityList_, monetaryUnitId, &Money::getMonetaryUnitId);
  return account == priorityList_.end() ? -1 : static_cast<int>(account - priorityList_.begin());
}

NotificationUpdateObject* UserAccountUpdateObject::clone() const { return new UserAccountUpdateObject(*this); }

}  // namespace Tessel
