#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/List.h>

#include <cstdint>

namespace Tessel {

class HERALD_API GameIdInfo : public ReadableRecord<GameIdInfo> {
 public:
  int getNrIds() const { return static_cast<int>(ids_.size()); }
  /// An index outside 0 to `getNrIds()` - 1 throws `OutOfBoundsException`.
  int getId(int i) const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template countedOrNone<std::int32_t>("ids", self.ids_);
  }

 private:
  List<std::int32_t> ids_;
};

}  // namespace Tessel
