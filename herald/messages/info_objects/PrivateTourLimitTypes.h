#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/TsArray.h>
#include <herald/platform/tableau/LimitType.h>

#include <cstdint>

namespace Tessel {

/// Betting limits as a mask.
class HERALD_API PrivateTourLimitTypes : public ReadableRecord<PrivateTourLimitTypes> {
 public:
  static constexpr int LIMIT_BIT = 0;
  static constexpr int POT_LIMIT_BIT = 1;
  static constexpr int NO_LIMIT_BIT = 2;
  static constexpr int RAISE_FOLD_BIT = 3;

  PrivateTourLimitTypes() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit PrivateTourLimitTypes(ByteStream& in);

  /// The mask.
  int getType() const { return type_; }
  bool getIsLimit() const;
  bool getIsPotLimit() const;
  bool getIsNoLimit() const;
  bool getIsRaiseFold() const;
  /// Those of limit, no limit, pot limit and raise-fold that are in the mask, in this order.
  TsArray<LimitTypes::AllowedLimitType> getLimitTypes() const;

  /// The mask of one type; 0 for a type without a bit.
  static int convertFromInternalTourType(LimitTypes::AllowedLimitType type);

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("type", self.type_);
  }

 private:
  std::int8_t type_ = -1;
};

}  // namespace Tessel
