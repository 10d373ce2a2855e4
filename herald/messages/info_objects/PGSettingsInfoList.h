#pragma once
#include <herald/messages/info_objects/InfoVector.h>
#include <herald/messages/info_objects/PGSettingsInfo.h>

namespace Tessel {

class HERALD_API PGSettingsInfoList : public InfoVector {
 public:
  /// Throws `OutOfBoundsException` for an index outside 0 to `size()` - 1 and `std::bad_cast` for an element of another
  /// class.
  const PGSettingsInfo& getGameInfo(int i) const;

  [[nodiscard]] ReadableObjectInfo* clone() const override;
  std::wstring toDebugString() const override;
};

}  // namespace Tessel
