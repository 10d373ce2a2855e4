#pragma once
#include <herald/messages/info_objects/WireRecord.h>

namespace Tessel {

/// A flag as a record of its own.
class HERALD_API TesselBool : public ReadableWritableRecord<TesselBool> {
 public:
  static constexpr bool IS_TRANSPARENT = true;

  TesselBool() = default;
  TesselBool(bool value) : value_(value) {}

  bool getValue() const { return value_; }
  void setValue(bool value) { value_ = value; }

  std::wstring toDebugString() const override;
  bool operator==(const TesselBool& other) const { return value_ == other.value_; }

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("", self.value_);
  }

 private:
  bool value_ = false;
};

}  // namespace Tessel
