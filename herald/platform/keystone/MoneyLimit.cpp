#include <herald/platform/keystone/MoneyLimit.h>

#include <utility>

namespace Tessel {

MoneyLimit::MoneyLimit(std::int64_t lowerLimit, std::int64_t upperLimit, int monetaryUnitId, Currency currency)
    : lowerLimit_(lowerLimit), upperLimit_(upperLimit), monetaryUnitId_(monetaryUnitId),
      currency_(std::move(currency)) {}

std::wstring MoneyLimit::toString() const {
  return currency_.toString(lowerLimit_) + L"/" + currency_.toString(upperLimit_);
}

}  // namespace Tessel
