#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// A 32-bit number as a record of its own.
class HERALD_API TesselInt : public ReadableWritableRecord<TesselInt> {
 public:
  static constexpr bool IS_TRANSPARENT = true;

  TesselInt() = default;
  TesselInt(int value) : value_(value) {}

  int getValue() const { return value_; }
  void setValue(int value) { value_ = value; }

  std::wstring toDebugString() const override;
  bool operator==(const TesselInt& other) const { return value_ == other.value_; }

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("", self.value_);
  }

 private:
  std::int32_t value_ = -1;
};

}  // namespace Tessel
