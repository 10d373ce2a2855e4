#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/LimitType.h>

namespace Tessel {

namespace {

using enum LimitTypes::AllowedLimitType;

constexpr LimitType LIMIT_TYPES[] = {
    {UNKNOWN, L"Unknown limit"}, {LIMIT, L"Limit"},           {POT_LIMIT, L"Pot Limit"},
    {NO_LIMIT, L"No Limit"},     {RAISE_FOLD, L"Raise-Fold"},
};

}  // namespace

const LimitType* LimitTypeFactory::createLimitType(LimitTypes::AllowedLimitType value) {
  return &Constants::get<LIMIT_TYPES>(value);
}

}  // namespace Tessel
