#pragma once
#include <herald/messages/info_objects/SelfPlayerInfo.h>

namespace Tessel {

/// The player who is logged in, with a number whose meaning is the server's.
class HERALD_API PokerSelfPlayerInfo : public ReadableRecord<PokerSelfPlayerInfo, SelfPlayerInfo> {
 public:
  PokerSelfPlayerInfo() = default;
  PokerSelfPlayerInfo(std::int64_t value, const SelfPlayerInfo& player);

  std::int64_t getValue() const { return value_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    SelfPlayerInfo::wire(self, fields);
    fields("value", self.value_);
  }

 private:
  std::int64_t value_ = -1;
};

}  // namespace Tessel
