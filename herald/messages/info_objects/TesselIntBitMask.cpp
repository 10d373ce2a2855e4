#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TesselIntBitMask.h>
#include <herald/platform/keystone/BitMasking.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/StringUtils.h>

namespace Tessel {

namespace {

void checkBitNumber(int bitNumber) {
  constexpr int HIGHEST = 31;
  if (bitNumber < 0 || bitNumber > HIGHEST)
    throw OutOfBoundsException(L"messages/info_objects/TesselIntBitMask", __LINE__, L"bitNumber", 0, HIGHEST,
                               bitNumber);
}

}  // namespace

TesselBitMaskInterface::~TesselBitMaskInterface() = default;
BitMaskInfo::~BitMaskInfo() = default;

bool TesselIntBitMask::getBit(int bitNumber) const {
  checkBitNumber(bitNumber);
  return BitMasking::getBit(mask_, bitNumber);
}

void TesselIntBitMask::setBit(int bitNumber, bool) {
  checkBitNumber(bitNumber);
  BitMasking::setBit(mask_, bitNumber);
}

std::wstring TesselIntBitMask::toDebugString() const { return StringUtils::intToString(mask_); }

}  // namespace Tessel
