#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/TsArray.h>

#include <cstdint>

namespace Tessel {

/// A record that is nothing but a list behind a 16-bit count. A negative count fails with `std::invalid_argument`.
template <class Self, class Item>
class HERALD_API ArrayRecord : public ReadableRecord<Self> {
 public:
  static constexpr bool IS_TRANSPARENT = true;

  const TsArray<Item>& getItems() const { return items_; }

  template <class Record, class Fields>
  static void wire(Record& self, Fields& fields) {
    fields.template counted<std::int16_t>("", self.items_);
  }

 private:
  TsArray<Item> items_;
};

}  // namespace Tessel
