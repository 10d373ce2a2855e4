#pragma once
#include <herald/messages/info_objects/InfoVector.h>
#include <herald/messages/info_objects/VIPPlayerInfo.h>

namespace Tessel {

class HERALD_API VIPList : public InfoVector {
 public:
  /// Throws `OutOfBoundsException` for an index outside 0 to `size()` - 1 and `std::bad_cast` for an element of another
  /// class.
  const VIPPlayerInfo& getVIPPlayer(int i) const;

  [[nodiscard]] ReadableObjectInfo* clone() const override;
};

}  // namespace Tessel
