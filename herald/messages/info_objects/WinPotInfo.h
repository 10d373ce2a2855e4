#pragma once
#include <herald/messages/info_objects/CreditInfo.h>
#include <herald/messages/info_objects/HandValueInfo.h>
#include <herald/platform/tableau/PotType.h>

namespace Tessel {

/// A pot, or a part of one, and who wins it with what.
class HERALD_API WinPotInfo : public ReadableRecord<WinPotInfo> {
 public:
  const PotType& getPotType() const;
  const CreditInfo& getCreditInfo() const { return credit_; }
  const HandValueInfo& getHandValue() const { return handValue_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template named<AllowedPotType>("potType", self.potType_);
    fields.ignoring("credit", self.credit_);
    fields.ignoring("handValue", self.handValue_);
  }

 private:
  std::int8_t potType_ = -1;
  CreditInfo credit_;
  HandValueInfo handValue_;
};

}  // namespace Tessel
