#include <herald/messages/info_objects/PrivateTourLimitTypes.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/BitMasking.h>

namespace Tessel {

namespace {

struct LimitBit {
  LimitTypes::AllowedLimitType type;
  int bit;
};

// In the order in which getLimitTypes lists them.
constexpr LimitBit LIMIT_BITS[] = {
    {LimitTypes::AllowedLimitType::LIMIT, PrivateTourLimitTypes::LIMIT_BIT},
    {LimitTypes::AllowedLimitType::NO_LIMIT, PrivateTourLimitTypes::NO_LIMIT_BIT},
    {LimitTypes::AllowedLimitType::POT_LIMIT, PrivateTourLimitTypes::POT_LIMIT_BIT},
    {LimitTypes::AllowedLimitType::RAISE_FOLD, PrivateTourLimitTypes::RAISE_FOLD_BIT},
};

}  // namespace

PrivateTourLimitTypes::PrivateTourLimitTypes(ByteStream& in) { PrivateTourLimitTypes::read(in); }

bool PrivateTourLimitTypes::getIsLimit() const { return BitMasking::getBit(type_, LIMIT_BIT); }

bool PrivateTourLimitTypes::getIsPotLimit() const { return BitMasking::getBit(type_, POT_LIMIT_BIT); }

bool PrivateTourLimitTypes::getIsNoLimit() const { return BitMasking::getBit(type_, NO_LIMIT_BIT); }

bool PrivateTourLimitTypes::getIsRaiseFold() const { return BitMasking::getBit(type_, RAISE_FOLD_BIT); }

TsArray<LimitTypes::AllowedLimitType> PrivateTourLimitTypes::getLimitTypes() const {
  TsArray<LimitTypes::AllowedLimitType> types;
  for (const LimitBit& row : LIMIT_BITS)
    if (BitMasking::getBit(type_, row.bit)) types.add(row.type);
  return types;
}

int PrivateTourLimitTypes::convertFromInternalTourType(LimitTypes::AllowedLimitType type) {
  for (const LimitBit& row : LIMIT_BITS)
    if (row.type == type) return 1 << row.bit;
  return 0;
}

std::wstring PrivateTourLimitTypes::toDebugString() const {
  return formatText(L"[PrivateTourLimitTypes: iType=%d]", type_);
}

}  // namespace Tessel
