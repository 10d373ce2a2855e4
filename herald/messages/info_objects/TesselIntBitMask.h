#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// A mask of numbered bits.
class HERALD_API TesselBitMaskInterface {
 public:
  virtual ~TesselBitMaskInterface();
  virtual bool getBit(int bitNumber) const = 0;
  /// Sets the bit; the second argument is not looked at.
  virtual void setBit(int bitNumber, bool) = 0;
};

/// The bases of a bit mask that travels both ways.
class HERALD_API BitMaskInfo : public ReadableWritableInfo, public TesselBitMaskInterface {
 public:
  ~BitMaskInfo() override;
};

/// A mask of 32 bits, numbered from 0. A bit number outside 0 to 31 throws `OutOfBoundsException`.
class HERALD_API TesselIntBitMask : public ReadableWritableRecord<TesselIntBitMask, BitMaskInfo> {
 public:
  static constexpr bool IS_TRANSPARENT = true;

  TesselIntBitMask() = default;
  TesselIntBitMask(int mask) : mask_(mask) {}

  int getMask() const { return mask_; }
  void setMask(int mask) { mask_ = mask; }

  bool getBit(int bitNumber) const override;
  void setBit(int bitNumber, bool = true) override;

  std::wstring toDebugString() const override;
  bool operator==(const TesselIntBitMask& other) const { return mask_ == other.mask_; }

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("", self.mask_);
  }

 private:
  std::int32_t mask_ = 0;
};

}  // namespace Tessel
