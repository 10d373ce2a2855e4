#pragma once
#include <herald/messages/info_objects/AmountInfo.h>
#include <herald/messages/info_objects/InfoList.h>

#include <cstdint>

namespace Tessel {

/// A buy-in that a private tournament may have, with its fee; the record around it says in which monetary unit.
class HERALD_API PrivateTourBuyInFeeType : public ReadableRecord<PrivateTourBuyInFeeType> {
 public:
  PrivateTourBuyInFeeType() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit PrivateTourBuyInFeeType(ByteStream& in);

  int getId() const { return id_; }
  std::int64_t getBuyIn() const { return buyIn_.getAmount(); }
  std::int64_t getFee() const { return fee_.getAmount(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("id", self.id_);
    fields("buyIn", self.buyIn_);
    fields("fee", self.fee_);
  }

 private:
  std::int8_t id_ = -1;
  Amount buyIn_;
  Amount fee_;
};

class HERALD_API PrivateTourBuyInFeeTypeList
    : public ReadableRecord<PrivateTourBuyInFeeTypeList, InfoList<PrivateTourBuyInFeeType>> {
 public:
  /// An index outside 0 to `getNrInfos()` - 1 throws `OutOfBoundsException`.
  const PrivateTourBuyInFeeType& getPrivateTourBuyInFeeType(int i) const { return (*this)[i]; }

  /// Leaves the items out.
  std::wstring toDebugString() const override;
};

}  // namespace Tessel
