#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// How long the blind levels of a tournament last.
class HERALD_API LevelStructureInfo : public ReadableRecord<LevelStructureInfo> {
 public:
  /// In milliseconds.
  std::int64_t getDurationMs() const { return durationMs_; }
  int getDurationInHands() const { return durationHands_; }
  /// Whether a level lasts a number of hands rather than a time.
  bool isDurationInHands() const { return durationHands_ != -1; }
  bool isAdaptive() const { return isAdaptive_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("durationMs", self.durationMs_);
    fields("durationHands", self.durationHands_);
    fields("isAdaptive", self.isAdaptive_);
  }

 private:
  std::int64_t durationMs_ = -1;
  std::int16_t durationHands_ = -1;
  bool isAdaptive_ = false;
};

}  // namespace Tessel
