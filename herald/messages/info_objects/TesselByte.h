#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// An 8-bit number, -128 to 127, as a record of its own.
class HERALD_API TesselByte : public ReadableWritableRecord<TesselByte> {
 public:
  static constexpr bool IS_TRANSPARENT = true;

  TesselByte() = default;
  TesselByte(char value) : value_(static_cast<std::int8_t>(value)) {}

  /// Where plain char is unsigned, as on ARM, a negative value comes as 256 more than it is.
  char getValue() const { return static_cast<char>(value_); }
  /// The value sign-extended on every machine.
  int getIntValue() const { return value_; }
  void setValue(char value) { value_ = static_cast<std::int8_t>(value); }

  std::wstring toDebugString() const override;
  bool operator==(const TesselByte& other) const { return value_ == other.value_; }

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("", self.value_);
  }

 private:
  std::int8_t value_ = -1;
};

}  // namespace Tessel
