#pragma once
#include <herald/messages/info_objects/InfoList.h>

#include <cstdint>

namespace Tessel {

/// A number of seats per table that a private tournament may have.
class HERALD_API PrivateTourSeatsPerTableType : public ReadableRecord<PrivateTourSeatsPerTableType> {
 public:
  PrivateTourSeatsPerTableType() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit PrivateTourSeatsPerTableType(ByteStream& in);

  int getNumSeats() const { return numSeats_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("numSeats", self.numSeats_);
  }

 private:
  std::int8_t numSeats_ = -1;
};

class HERALD_API PrivateTourSeatsPerTableTypeList
    : public ReadableRecord<PrivateTourSeatsPerTableTypeList, InfoList<PrivateTourSeatsPerTableType>> {
 public:
  /// An index outside 0 to `getNrInfos()` - 1 throws `OutOfBoundsException`.
  const PrivateTourSeatsPerTableType& getPrivateTourSeatsPerTableType(int i) const { return (*this)[i]; }

  /// Leaves the items out.
  std::wstring toDebugString() const override;
};

}  // namespace Tessel
