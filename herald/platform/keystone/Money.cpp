#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/Money.h>
#include <herald/platform/keystone/MoneyModel.h>
#include <herald/platform/keystone/SaturatingArithmetic.h>

namespace Tessel {

std::wstring Money::toString() const {
  Currency currency;
  MoneyModel::getInstance().getCurrency(monetaryUnitId_, currency);
  return currency.toString(amount_);
}

Money& Money::operator+=(const Money& other) {
  if (monetaryUnitId_ != other.monetaryUnitId_)
    throw KeystoneException(L"platform/keystone/Money", __LINE__, L"Sum of different monetary units.");
  amount_ = SaturatingArithmetic::add(amount_, other.amount_);
  return *this;
}

}  // namespace Tessel
