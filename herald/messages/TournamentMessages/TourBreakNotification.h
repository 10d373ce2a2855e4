#pragma once
#include <herald/messages/WireMessage.h>

#include <cstdint>

namespace Tessel {

/// When the next break comes. The message logs itself when it has been read.
class HERALD_API TourBreakNotification : public WireMessage<TourBreakNotification> {
 public:
  bool hasMoreBreaks() const { return msUntilBreak_ != -1; }
  /// In milliseconds; -1 when there are no more breaks.
  std::int64_t getMsUntilNextBreak() const { return msUntilBreak_; }
  std::int64_t getNextBreakDurationMs() const { return breakDuration_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("msUntilBreak", self.msUntilBreak_);
    fields("breakDuration", self.breakDuration_);
    fields.onRead(self, &TourBreakNotification::log);
  }

 private:
  bool log() const;

  std::int64_t msUntilBreak_ = -1;
  std::int64_t breakDuration_ = -1;
};

}  // namespace Tessel
