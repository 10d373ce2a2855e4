#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// The player's settings of a table, as a mask of flags.
class HERALD_API SettingsInfo : public ReadableWritableRecord<SettingsInfo> {
 public:
  static constexpr std::uint32_t SOUND = 0x1;
  static constexpr std::uint32_t ANIMATIONS = 0x2;
  static constexpr std::uint32_t SHOW_CASH = 0x4;
  static constexpr std::uint32_t LONG_SHOWDOWN = 0x8;
  static constexpr std::uint32_t SHOW_HALO = 0x10;
  static constexpr std::uint32_t AUTOPOST_BLIND = 0x40;
  static constexpr std::uint32_t MUCK_LOSING = 0x80;
  static constexpr std::uint32_t SHOW_WINNING = 0x100;
  static constexpr std::uint32_t RANDOM_DELAY = 0x200;
  static constexpr std::uint32_t WAIT_FOR_BIG_BLIND = 0x400;
  static constexpr std::uint32_t MUCK_UNCALLED = 0x800;

  /// Whether any flag of the mask is set.
  bool isSet(std::uint32_t mask) const { return (bits_ & mask) != 0; }
  void set(std::uint32_t mask) { bits_ |= mask; }
  /// Also clears the upper 32 bits of the value.
  void unSet(std::uint32_t mask) { bits_ &= static_cast<std::uint32_t>(~mask); }
  /// The whole value.
  std::int64_t getUINTFormat() const { return bits_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("bits", self.bits_);
  }

 private:
  std::int64_t bits_ = 0;
};

}  // namespace Tessel
