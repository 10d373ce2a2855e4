#pragma once
#include <herald/messages/info_objects/InfoVector.h>
#include <herald/messages/info_objects/TreeNodeInfo.h>

namespace Tessel {

class HERALD_API TreeNodeInfoList : public InfoVector {
 public:
  /// Throws `OutOfBoundsException` for an index outside 0 to `size()` - 1 and `std::bad_cast` for an element of another
  /// class.
  const TreeNodeInfo& getTreeNodeInfo(int i) const;

  [[nodiscard]] ReadableObjectInfo* clone() const override;
  std::wstring toDebugString() const override;
};

}  // namespace Tessel
