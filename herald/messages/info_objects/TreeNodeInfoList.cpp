#include <herald/messages/info_objects/TreeNodeInfoList.h>

namespace Tessel {

const TreeNodeInfo& TreeNodeInfoList::getTreeNodeInfo(int i) const {
  return dynamic_cast<const TreeNodeInfo&>((*this)[i]);
}

ReadableObjectInfo* TreeNodeInfoList::clone() const { return new TreeNodeInfoList(*this); }

std::wstring TreeNodeInfoList::toDebugString() const {
  return L"[TreeNodeInfoList: Obs, not empty, just not displaying all since list might be too long]";
}

}  // namespace Tessel
