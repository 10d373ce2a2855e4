#pragma once
#include <herald/messages/info_objects/PrivateTourBuyInFeeType.h>

#include <cstdint>

namespace Tessel {

/// The buy-ins and fees that private tournaments may have in a monetary unit.
class HERALD_API PrivateTourMonetaryBuyInFeeType : public ReadableRecord<PrivateTourMonetaryBuyInFeeType> {
 public:
  PrivateTourMonetaryBuyInFeeType() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit PrivateTourMonetaryBuyInFeeType(ByteStream& in);

  int getMonetaryUnitId() const { return monetaryUnitId_; }
  const PrivateTourBuyInFeeTypeList& getPrivateTourMonetaryBuyInFeeType() const { return buyInFees_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("monetaryUnitId", self.monetaryUnitId_);
    fields("buyInFees", self.buyInFees_);
  }

 private:
  std::int16_t monetaryUnitId_ = -1;
  PrivateTourBuyInFeeTypeList buyInFees_;
};

class HERALD_API PrivateTourMonetaryBuyInFeeTypeList
    : public ReadableRecord<PrivateTourMonetaryBuyInFeeTypeList, InfoList<PrivateTourMonetaryBuyInFeeType>> {
 public:
  /// An index outside 0 to `getNrInfos()` - 1 throws `OutOfBoundsException`.
  const PrivateTourMonetaryBuyInFeeType& getPrivateTourMonetaryBuyInFeeType(int i) const { return (*this)[i]; }

  /// Leaves the items out.
  std::wstring toDebugString() const override;
};

}  // namespace Tessel
