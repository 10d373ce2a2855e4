#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// A player and the seat that the player has.
class HERALD_API PlayerId : public ReadableWritableRecord<PlayerId> {
 public:
  PlayerId() = default;
  PlayerId(int id, int seat) : id_(id), seat_(seat) {}

  int getId() const { return id_; }
  int getSeat() const { return seat_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("id", self.id_);
    fields("seat", self.seat_);
  }

 private:
  std::int32_t id_ = 0;
  std::int32_t seat_ = 0;
};

}  // namespace Tessel
