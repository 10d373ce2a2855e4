#include <herald/messages/info_objects/PGSettingsInfoList.h>

namespace Tessel {

const PGSettingsInfo& PGSettingsInfoList::getGameInfo(int i) const {
  return dynamic_cast<const PGSettingsInfo&>((*this)[i]);
}

ReadableObjectInfo* PGSettingsInfoList::clone() const { return new PGSettingsInfoList(*this); }

std::wstring PGSettingsInfoList::toDebugString() const {
  return L"[PGSettingsInfoList: " + InfoVector::toDebugString() + L"]";
}

}  // namespace Tessel
