#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// The player who is logged in.
class HERALD_API SelfPlayerInfo : public ReadableRecord<SelfPlayerInfo> {
 public:
  int getId() const { return id_; }
  std::wstring getNickName() const { return nickName_.getString(); }
  std::wstring getCity() const { return city_.getString(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("id", self.id_);
    fields("nickName", self.nickName_);
    fields("city", self.city_);
  }

 private:
  std::int32_t id_ = -1;
  Text nickName_;
  Text city_;
};

}  // namespace Tessel
