#pragma once
#include <herald/messages/info_objects/WireRecord.h>

namespace Tessel {

/// The base of what a lobby lists. It has no fields.
class HERALD_API LobbyItemInfo : public ReadableRecord<LobbyItemInfo> {
 public:
  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self&, Fields&) {}
};

}  // namespace Tessel
