#pragma once
#include <herald/messages/info_objects/ArrayRecord.h>
#include <herald/messages/info_objects/TourSummary.h>
#include <herald/messages/info_objects/TourSummaryUpdate.h>

#include <cstdint>

namespace Tessel {

class HERALD_API TourSummaryList : public ArrayRecord<TourSummaryList, TourSummary> {
 public:
  std::wstring toDebugString() const override;
};

class HERALD_API TourSummaryUpdateList : public ArrayRecord<TourSummaryUpdateList, TourSummaryUpdate> {
 public:
  std::wstring toDebugString() const override;
};

/// The ids of tournaments that went away.
class HERALD_API TourSummaryDeleteList : public ArrayRecord<TourSummaryDeleteList, std::int32_t> {
 public:
  std::wstring toDebugString() const override;
};

}  // namespace Tessel
