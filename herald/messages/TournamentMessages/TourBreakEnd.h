#pragma once
#include <herald/messages/WireMessage.h>

namespace Tessel {

/// The break is over. The message logs itself when it has been read.
class HERALD_API TourBreakEnd : public WireMessage<TourBreakEnd> {
 public:
  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.onRead(self, &TourBreakEnd::log);
  }

 private:
  bool log() const;
};

}  // namespace Tessel
