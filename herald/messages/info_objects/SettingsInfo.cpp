#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/SettingsInfo.h>

namespace Tessel {

std::wstring SettingsInfo::toDebugString() const { return L"[SettingsInfo: ]"; }

}  // namespace Tessel
