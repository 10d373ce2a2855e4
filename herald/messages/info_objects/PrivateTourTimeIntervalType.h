#pragma once
#include <herald/messages/info_objects/InfoList.h>

#include <cstdint>

namespace Tessel {

/// An interval in which a private tournament may start; its times are in milliseconds.
class HERALD_API PrivateTourTimeIntervalType : public ReadableRecord<PrivateTourTimeIntervalType> {
 public:
  PrivateTourTimeIntervalType() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit PrivateTourTimeIntervalType(ByteStream& in);

  std::int64_t getStartTime() const { return startTime_; }
  std::int64_t getEndTime() const { return endTime_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("startTime", self.startTime_);
    fields("endTime", self.endTime_);
  }

 private:
  std::int64_t startTime_ = -1;
  std::int64_t endTime_ = -1;
};

class HERALD_API PrivateTourTimeIntervalTypeList
    : public ReadableRecord<PrivateTourTimeIntervalTypeList, InfoList<PrivateTourTimeIntervalType>> {
 public:
  /// An index outside 0 to `getNrInfos()` - 1 throws `OutOfBoundsException`.
  const PrivateTourTimeIntervalType& getPrivateTourTimeIntervalType(int i) const { return (*this)[i]; }

  /// Leaves the items out.
  std::wstring toDebugString() const override;
};

}  // namespace Tessel
